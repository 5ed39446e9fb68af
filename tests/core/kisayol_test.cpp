// The global hot key.
#include "desktop/kisayol/kisayol.hpp"

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <vector>

#include "fakes/sahte_kisayol.hpp"
#include "fakes/sahte_kuyruk.hpp"
#include "fakes/sahte_masaustu.hpp"

namespace nevo {
namespace {

struct KisayolTesti : ::testing::Test {
  // The verdict on a registration, when it has come.
  std::optional<bool> tak(std::int64_t kod, std::int64_t mod) {
    auto sonuc = std::make_shared<std::optional<bool>>();
    kisayol.tak(kod, mod, [sonuc](bool kabul) { *sonuc = kabul; });
    sonuclar.push_back(sonuc);
    return *sonuc;
  }
  void kaydet(std::int64_t kod, std::int64_t mod, const std::string& ad = "⌃⌥K") {
    tercih.kisayolKod(kod);
    tercih.kisayolMod(mod);
    tercih.kisayolAd(ad);
  }
  sahte::TercihDeposuSahte depo;
  Tercih tercih{depo};
  sahte::Kuyruk kuyruk;
  sahte::SicakTusSahte tus;
  Kisayol kisayol{tus, tercih, kuyruk};
  std::vector<std::shared_ptr<std::optional<bool>>> sonuclar;
};

TEST_F(KisayolTesti, KurKayitliKisayoluTakar) {
  kaydet(40, 6144);
  kisayol.kur();
  EXPECT_EQ(tus.isleyiciKurmalari, 1);
  ASSERT_TRUE(tus.kayitli);
  EXPECT_EQ(*tus.kayitli, (sahte::SicakTusSahte::Kayit{40, 6144}));
  EXPECT_TRUE(kisayol.kayitli());
}

TEST_F(KisayolTesti, KayitsizKurHicbirSeyTakmaz) {
  kisayol.kur();
  EXPECT_TRUE(tus.denemeler.empty());
}

TEST_F(KisayolTesti, BasmaAnaKuyruktaTetikler) {
  int tetiklenme = 0;
  kisayol.tetikleAyarla([&] { ++tetiklenme; });
  kisayol.kur();
  tus.bas();
  EXPECT_EQ(tetiklenme, 0);
  kuyruk.calistir();
  EXPECT_EQ(tetiklenme, 1);
}

TEST_F(KisayolTesti, TetikleBosykenBasmaHicbirSeyYapmaz) {
  kisayol.kur();
  tus.bas();
  EXPECT_EQ(kuyruk.calistir(), 1);
}

TEST_F(KisayolTesti, AyniKombinasyonuYenidenTakmakOnceBirakir) {
  ASSERT_EQ(tak(40, 6144), true);
  EXPECT_EQ(tak(40, 6144), true);
  EXPECT_EQ(tus.kaldirmalar, 1);
  EXPECT_EQ(tus.denemeler.size(), 2u);
}

TEST_F(KisayolTesti, ReddedilenTakHicKayitBirakmaz) {
  ASSERT_EQ(tak(40, 6144), true);
  tus.baskasinda.push_back({41, 6144});
  EXPECT_EQ(tak(41, 6144), false);
  EXPECT_FALSE(tus.kayitli);
  EXPECT_FALSE(kisayol.kayitli());
}

TEST_F(KisayolTesti, GecikenKararGelinceKayitliSayilir) {
  tus.sonraYanitla = true;
  EXPECT_EQ(tak(40, 6144), std::nullopt);
  EXPECT_TRUE(kisayol.bekliyor());
  EXPECT_FALSE(kisayol.kayitli());
  tus.yanitla();
  EXPECT_EQ(*sonuclar.back(), true);
  EXPECT_FALSE(kisayol.bekliyor());
  EXPECT_TRUE(kisayol.kayitli());
}

TEST_F(KisayolTesti, BirakilanKaydinGecikenKarariHicbirSeyDegistirmez) {
  tus.sonraYanitla = true;
  tak(40, 6144);
  auto gec = tus.bekleyen;
  kisayol.birak();
  EXPECT_EQ(tus.kaldirmalar, 1);  // the waiting registration is withdrawn too
  gec();
  EXPECT_EQ(*sonuclar.back(), std::nullopt);
  EXPECT_FALSE(kisayol.kayitli());
  EXPECT_FALSE(kisayol.bekliyor());
  // Nor does the first one's, once a second registration was asked for.
  tak(41, 6144);
  gec = tus.bekleyen;
  tak(42, 6144);
  gec();
  EXPECT_EQ(*sonuclar[1], std::nullopt);
  EXPECT_TRUE(kisayol.bekliyor());
}

TEST_F(KisayolTesti, SilTercihleriTemizlerVeYenidenAcilistaHicbirSeyTakilmaz) {
  kaydet(40, 6144);
  kisayol.kur();
  kisayol.sil();
  EXPECT_FALSE(tus.kayitli);
  EXPECT_EQ(tercih.kisayolKod(), -1);
  EXPECT_EQ(tercih.kisayolMod(), 0);
  EXPECT_EQ(tercih.kisayolAd(), "");
  sahte::SicakTusSahte yeniTus;
  Kisayol yeni{yeniTus, tercih, kuyruk};
  yeni.kur();
  EXPECT_TRUE(yeniTus.denemeler.empty());
}

TEST_F(KisayolTesti, BirakTercihleriKorur) {
  kaydet(40, 6144);
  kisayol.kur();
  kisayol.birak();
  EXPECT_FALSE(tus.kayitli);
  EXPECT_EQ(tercih.kisayolKod(), 40);
  EXPECT_EQ(tercih.kisayolAd(), "⌃⌥K");
}

TEST_F(KisayolTesti, AcilistaReddedilenKayitliKisayolTercihleriDegistirmez) {
  kaydet(40, 6144);
  tus.baskasinda.push_back({40, 6144});
  kisayol.kur();
  EXPECT_FALSE(kisayol.kayitli());
  EXPECT_EQ(tercih.kisayolKod(), 40);
  EXPECT_EQ(tercih.kisayolMod(), 6144);
  EXPECT_EQ(tercih.kisayolAd(), "⌃⌥K");
}

TEST_F(KisayolTesti, AralikDisindakiKayitliDegerKisayolSayilmaz) {
  for (const auto& [kod, mod] : std::vector<std::pair<std::int64_t, std::int64_t>>{
           {4294967296, 0}, {40, 4294967296}, {40, -1}, {-5, 6144}}) {
    kaydet(kod, mod);
    kisayol.kur();
  }
  EXPECT_TRUE(tus.denemeler.empty());
  kaydet(4294967295, 4294967295);
  kisayol.kur();
  EXPECT_EQ(tus.denemeler.size(), 1u);
}

TEST_F(KisayolTesti, AralikDisindakiTakProgramiDurdurur) {
  EXPECT_DEATH(kisayol.tak(4294967296, 0), "");
  EXPECT_DEATH(kisayol.tak(40, -1), "");
}

TEST_F(KisayolTesti, YokEdilenKisayolunBasmasiHicbirSeyYapmaz) {
  sahte::SicakTusSahte t;
  int tetiklenme = 0;
  {
    Kisayol gecici{t, tercih, kuyruk};
    gecici.tetikleAyarla([&] { ++tetiklenme; });
    gecici.kur();
  }
  t.bas();
  kuyruk.calistir();
  EXPECT_EQ(tetiklenme, 0);
}

}  // namespace
}  // namespace nevo
