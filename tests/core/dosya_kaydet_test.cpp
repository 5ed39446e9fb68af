// File save.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>

#include "fakes/gecici_dosyalar.hpp"
#include "fakes/uygulama_duzenegi.hpp"
#include "temel/atomik_yaz.hpp"

namespace nevo {
namespace {

namespace fs = std::filesystem;

using sahte::dosyaOku;

struct DosyaKaydet : ::testing::Test {
  DosyaKaydet() {
    d.paketliAc();
    dizin = sahte::bosDizin("dosya_kaydet_");
  }
  ~DosyaKaydet() override {
    fs::permissions(dizin, fs::perms::owner_all);
    fs::remove_all(dizin);
  }
  sahte::UygulamaDuzenegi d;
  fs::path dizin;
};

TEST_F(DosyaKaydet, UzantisizAdUzantisizOnerilir) {
  d.mesaj(R"({"tur":"dosya-kaydet","ad":"rapor","icerik":"x"})");
  EXPECT_EQ(d.kayitPaneli.onerilenler, (std::vector<std::string>{"rapor"}));
}

TEST_F(DosyaKaydet, BosIcerikBosDosyaUretir) {
  d.mesaj(R"({"tur":"dosya-kaydet","ad":"a.txt","icerik":""})");
  d.kayitPaneli.bitti((dizin / "a.txt").string());
  ASSERT_TRUE(fs::exists(dizin / "a.txt"));
  EXPECT_EQ(fs::file_size(dizin / "a.txt"), 0u);
}

TEST_F(DosyaKaydet, TurkceVeEmojiBomsuzUtf8Yazilir) {
  d.mesaj(R"({"tur":"dosya-kaydet","ad":"t.txt","icerik":"Şule ığdır 🙂\n\u0000son"})");
  d.kayitPaneli.bitti((dizin / "t.txt").string());
  std::string beklenen = "Şule ığdır 🙂\n";
  beklenen += '\0';
  beklenen += "son";
  EXPECT_EQ(dosyaOku(dizin / "t.txt"), beklenen);
  EXPECT_NE(dosyaOku(dizin / "t.txt").substr(0, 3), "\xEF\xBB\xBF");
}

TEST_F(DosyaKaydet, YazmaIzniOlmayanKlasordeDosyaKalmaz) {
  if (::geteuid() == 0) {
    // root writes anywhere; a path under a regular file fails for everyone.
    std::ofstream(dizin / "dosya") << "x";
    d.mesaj(R"({"tur":"dosya-kaydet","ad":"a","icerik":"x"})");
    d.kayitPaneli.bitti((dizin / "dosya" / "a").string());
    EXPECT_FALSE(fs::exists(dizin / "dosya" / "a"));
  }
  const auto kilitli = dizin / "kilitli";
  fs::create_directories(kilitli);
  fs::permissions(kilitli, fs::perms::owner_read | fs::perms::owner_exec);
  d.mesaj(R"({"tur":"dosya-kaydet","ad":"a","icerik":"x"})");
  EXPECT_NO_THROW(d.kayitPaneli.bitti((kilitli / "a").string()));
  if (::geteuid() != 0) {
    EXPECT_TRUE(fs::is_empty(kilitli));
  }
  d.kuyruk.calistir();
  EXPECT_TRUE(d.web().betikler.empty());
}

TEST_F(DosyaKaydet, IptalHicbirSeyYazmaz) {
  d.mesaj(R"({"tur":"dosya-kaydet","ad":"a","icerik":"x"})");
  d.kayitPaneli.bitti(std::nullopt);
  EXPECT_TRUE(fs::is_empty(dizin));
}

TEST_F(DosyaKaydet, VarOlanDosyaTamamenDegistirilirGeciciDosyaKalmaz) {
  std::ofstream(dizin / "v.json") << "eski ve daha uzun bir içerik";
  d.mesaj(R"({"tur":"dosya-kaydet","ad":"v.json","icerik":"{}"})");
  d.kayitPaneli.bitti((dizin / "v.json").string());
  EXPECT_EQ(dosyaOku(dizin / "v.json"), "{}");
  EXPECT_EQ(std::distance(fs::directory_iterator(dizin), fs::directory_iterator()), 1);
}

TEST_F(DosyaKaydet, AcikPencereVarkenGelenIstekDusurulur) {
  d.mesaj(R"({"tur":"dosya-kaydet","ad":"bir","icerik":"1"})");
  for (int i = 0; i < 25; ++i) d.mesaj(R"({"tur":"dosya-kaydet","ad":"iki","icerik":"2"})");
  EXPECT_EQ(d.kayitPaneli.onerilenler, (std::vector<std::string>{"bir"}));
  d.kayitPaneli.bitti((dizin / "bir").string());
  EXPECT_EQ(dosyaOku(dizin / "bir"), "1");
  d.mesaj(R"({"tur":"dosya-kaydet","ad":"uc","icerik":"3"})");
  EXPECT_EQ(d.kayitPaneli.onerilenler, (std::vector<std::string>{"bir", "uc"}));
  d.kayitPaneli.bitti(std::nullopt);
  d.mesaj(R"({"tur":"dosya-kaydet","ad":"dort","icerik":"4"})");
  EXPECT_EQ(d.kayitPaneli.onerilenler.size(), 3u);
}

TEST(AtomikYaz, BuyukIcerigiEksiksizYazar) {
  const auto yol = fs::path(::testing::TempDir()) / "dosya_kaydet_buyuk.bin";
  std::string icerik(3 * 1024 * 1024 + 7, '\0');
  for (std::size_t i = 0; i < icerik.size(); ++i) icerik[i] = static_cast<char>(i * 31);
  ASSERT_TRUE(atomikYaz(yol.string(), icerik));
  EXPECT_EQ(dosyaOku(yol), icerik);
  fs::remove(yol);
}

TEST(AtomikYaz, CokmeyeDayanikliYazmaDaEskiyiButunuyleDegistirir) {
  const auto dizin = sahte::bosDizin("atomik_cokme_");
  const auto yol = dizin / "kayit";
  ASSERT_TRUE(atomikYaz(yol.string(), "eski uzun içerik", Dayaniklilik::Cokme));
  ASSERT_TRUE(atomikYaz(yol.string(), "yeni", Dayaniklilik::Cokme));
  EXPECT_EQ(dosyaOku(yol), "yeni");
  EXPECT_EQ(std::distance(fs::directory_iterator(dizin), fs::directory_iterator()), 1);
  fs::remove_all(dizin);
}

}  // namespace
}  // namespace nevo
