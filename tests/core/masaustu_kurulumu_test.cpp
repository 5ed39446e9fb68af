// Desktop wiring.
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "fakes/uygulama_duzenegi.hpp"

namespace nevo {
namespace {

struct MasaustuKurulumu : ::testing::Test {
  MasaustuKurulumu() { d.ac(); }
  // An entry chosen in the menu-bar item's menu.
  void menudenSec(const std::string& komut) {
    d.menuCubugu.uygula(true);
    d.durumOgesi.secildi(komut);
  }
  sahte::UygulamaDuzenegi d;
};

TEST_F(MasaustuKurulumu, AcilistaKopruPenceredenSonraKurulur) {
  EXPECT_EQ(d.sicakTus.isleyiciKurmalari, 1);
  EXPECT_EQ(d.masaustu->anaPencere(), &d.pencere());
  d.hizliGorunum.yazVeGonder("metin");
  menudenSec("ayarlar");
  d.kuyruk.calistir();
  EXPECT_EQ(d.web().betikler,
            (std::vector<std::string>{"window.nevoHizliMesaj && window.nevoHizliMesaj('metin')",
                                      "window.nevoKomut && window.nevoKomut('ayarlar')"}));
}

TEST_F(MasaustuKurulumu, BetiklerSonrakiTurdaVeSirasiylaCalisir) {
  d.masaustu->komut("1");
  d.masaustu->komut("2");
  d.masaustu->mesaj(nlohmann::json::parse(R"({"istek":3,"eylem":"durum"})"));
  EXPECT_TRUE(d.web().betikler.empty());
  d.kuyruk.calistir();
  ASSERT_EQ(d.web().betikler.size(), 3u);
  EXPECT_EQ(d.web().betikler[0], "window.nevoKomut && window.nevoKomut('1')");
  EXPECT_EQ(d.web().betikler[1], "window.nevoKomut && window.nevoKomut('2')");
  EXPECT_NE(d.web().betikler[2].find("nevoMasaustuCevap(3, '"), std::string::npos);
}

TEST_F(MasaustuKurulumu, BetikOlduguGibiGider) {
  const std::string betik("a\0b'\\\u2028ş", 10);
  d.uygulama->kopru().sayfayaGonder(betik);
  d.uygulama->kopru().sayfayaGonder("");
  d.kuyruk.calistir();
  EXPECT_EQ(d.web().betikler, (std::vector<std::string>{betik, ""}));
}

TEST_F(MasaustuKurulumu, PencereKapaliykenMenuKomutuSayfayaUlasir) {
  d.pencere().kapat();
  menudenSec("yeni-sohbet");
  d.kuyruk.calistir();
  EXPECT_EQ(d.web().betikler,
            (std::vector<std::string>{"window.nevoKomut && window.nevoKomut('yeni-sohbet')"}));
  EXPECT_TRUE(d.pencere().gorunurMu);
}

TEST_F(MasaustuKurulumu, CikSayfayaBirSeyGondermedenSonlandirir) {
  menudenSec("cik");
  d.kuyruk.calistir();
  EXPECT_EQ(d.sistem.sonlandirmalar, 1);
  EXPECT_TRUE(d.web().betikler.empty());
}

TEST_F(MasaustuKurulumu, AcOneGetirirSayfayaGondermez) {
  d.pencere().kapat();
  d.gunluk->clear();
  menudenSec("ac");
  d.kuyruk.calistir();
  EXPECT_EQ(*d.gunluk, (std::vector<std::string>{"sistem.etkinlestir", "pencere.oneGetir"}));
  EXPECT_TRUE(d.web().betikler.empty());
}

TEST_F(MasaustuKurulumu, HizliMetinSayfadanOnceAnaPencereyiOneGetirir) {
  d.pencere().kapat();
  d.gunluk->clear();
  d.yol->gunluk = d.gunluk;
  d.betikleriTopla();
  d.hizliGorunum.yazVeGonder("Merhaba 'dünya'");
  EXPECT_EQ(*d.gunluk,
            (std::vector<std::string>{
                "sistem.etkinlestir", "pencere.oneGetir",
                "sayfa:window.nevoHizliMesaj && window.nevoHizliMesaj('Merhaba \\'dünya\\'')"}));
}

TEST_F(MasaustuKurulumu, TemsilciGidinceGeriCagrilarYalnizIletir) {
  d.uygulama.reset();
  EXPECT_EQ(d.masaustu->anaPencere(), nullptr);
  d.masaustu->komut("x");
  d.kuyruk.calistir();
  d.betikleriTopla();
  menudenSec("ayarlar");
  d.hizliGorunum.yazVeGonder("y");
  EXPECT_EQ(d.betikler,
            (std::vector<std::string>{"window.nevoKomut && window.nevoKomut('ayarlar')",
                                      "window.nevoHizliMesaj && window.nevoHizliMesaj('y')"}));
}

TEST_F(MasaustuKurulumu, YenidenKurmakEskiGeriCagrilariDegistirir) {
  d.uygulama->masaustuKur();
  EXPECT_EQ(d.sicakTus.isleyiciKurmalari, 2);
  d.masaustu->komut("k");
  d.kuyruk.calistir();
  EXPECT_EQ(d.web().betikler.size(), 1u);
}

TEST_F(MasaustuKurulumu, SayfaIslenmesiUykuEngeliniTemizler) {
  d.tercih.uyanikTut(true);
  d.masaustu->isMesaji(nlohmann::json::parse(R"({"is":"is","acik":true})"));
  ASSERT_TRUE(d.masaustu->uyku().aktif());
  d.web().suankiAdres = "https://app.nevo.ai/";
  d.uygulama->sayfaIslendi();
  EXPECT_FALSE(d.masaustu->uyku().aktif());
  EXPECT_EQ(d.masaustu->uyku().isSayisi(), 0u);
}

TEST_F(MasaustuKurulumu, CikistaAjandanSonraKopruKapanir) {
  d.tercih.uyanikTut(true);
  d.kisayol.tak(49, 256);
  ASSERT_TRUE(d.kisayol.kayitli());
  d.masaustu->isMesaji(nlohmann::json::parse(R"({"is":"is","acik":true})"));
  d.uygulama->applicationWillTerminate();
  EXPECT_EQ(d.sicakTus.kaldirmalar, 1);
  EXPECT_FALSE(d.sicakTus.kayitli);
  EXPECT_FALSE(d.masaustu->uyku().aktif());
}

}  // namespace
}  // namespace nevo
