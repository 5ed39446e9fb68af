// Application menu.
#include <gtest/gtest.h>

#include "app/pencere/menu_modeli.hpp"
#include "fakes/uygulama_duzenegi.hpp"

namespace nevo {
namespace {

using sahte::UygulamaDuzenegi;

std::vector<std::string> satirlar(const AltMenu& menu) {
  std::vector<std::string> sonuc;
  for (const auto& o : menu.ogeler) {
    sonuc.push_back(ayracMi(o) ? "---" : o.baslik + "|" + o.eylem + "|" + o.tus);
  }
  return sonuc;
}

TEST(Menu, DortMenuBasliklarVeTuslarSirayla) {
  UygulamaDuzenegi d;
  d.ac();
  const auto& m = d.menu.kurulan;
  ASSERT_EQ(m.size(), 4u);
  EXPECT_EQ(m[0].baslik, "");
  EXPECT_EQ(satirlar(m[0]),
            (std::vector<std::string>{"Nevo Hakkında|hakkinda|", "---", "Gizle|gizle|h",
                                      "Diğerlerini Gizle|digerlerini-gizle|H", "---",
                                      "Nevo'den Çık|cik|q"}));
  EXPECT_EQ(m[1].baslik, "Düzen");
  EXPECT_EQ(satirlar(m[1]),
            (std::vector<std::string>{"Geri Al|geri-al|z", "Yinele|yinele|Z", "---", "Kes|kes|x",
                                      "Kopyala|kopyala|c", "Yapıştır|yapistir|v",
                                      "Tümünü Seç|tumunu-sec|a"}));
  EXPECT_EQ(m[2].baslik, "Görünüm");
  EXPECT_EQ(satirlar(m[2]),
            (std::vector<std::string>{"Yeniden Yükle|yeniden-yukle|r", "Tam Ekran|tam-ekran|f"}));
  EXPECT_EQ(m[3].baslik, "Pencere");
  EXPECT_EQ(satirlar(m[3]),
            (std::vector<std::string>{"Simge Durumuna Küçült|kucult|m", "Kapat|kapat|w"}));
  EXPECT_TRUE(m[3].pencereMenusu);
  EXPECT_FALSE(m[0].pencereMenusu || m[1].pencereMenusu || m[2].pencereMenusu);
}

TEST(Menu, BuyukHarfShiftEkler) {
  EXPECT_TRUE(shiftEkler({"Yinele", "yinele", "Z"}));
  EXPECT_TRUE(shiftEkler({"Diğerlerini Gizle", "digerlerini-gizle", "H"}));
  EXPECT_FALSE(shiftEkler({"Gizle", "gizle", "h"}));
  EXPECT_FALSE(shiftEkler({"Nevo Hakkında", "hakkinda", ""}));
}

TEST(Menu, CevrimdisiSayfadaYenidenYukle) {
  UygulamaDuzenegi d;
  d.ac();
  d.uygulama->hataGoster("https://app.nevo.ai/");
  d.uygulama->menuEylemi("yeniden-yukle");
  EXPECT_EQ(d.web().yuklenenler.back(), "https://app.nevo.ai/");
  EXPECT_EQ(d.web().yuklenenler.size(), 2u);
}

TEST(Menu, CikisNormalSonlandirmaYolundan) {
  UygulamaDuzenegi d;
  d.ac();
  d.uygulama->menuEylemi("cik");
  EXPECT_EQ(d.sistem.sonlandirmalar, 1);
}

TEST(Menu, KapatPencereyiGizlerUygulamaSurer) {
  UygulamaDuzenegi d;
  d.ac();
  d.uygulama->menuEylemi("kapat");
  EXPECT_FALSE(d.pencere().gorunur());
  EXPECT_EQ(d.sistem.sonlandirmalar, 0);
  d.uygulama->applicationShouldHandleReopen(false);
  EXPECT_TRUE(d.pencere().gorunur());
}

TEST(Menu, DuzenlemeKomutlariWebeGider) {
  UygulamaDuzenegi d;
  d.ac();
  for (const char* e : {"geri-al", "yinele", "kes", "kopyala", "yapistir", "tumunu-sec"}) {
    d.uygulama->menuEylemi(e);
  }
  EXPECT_EQ(d.web().duzenlemeler,
            (std::vector<std::string>{"Undo", "Redo", "Cut", "Copy", "Paste", "SelectAll"}));
}

TEST(Menu, PencereVeUygulamaKomutlari) {
  UygulamaDuzenegi d;
  d.ac();
  d.adreseGit(std::string(sahte::ADRES) + "home");  // full screen is offered in the main mode
  d.gunluk->clear();
  for (const char* e : {"hakkinda", "gizle", "digerlerini-gizle", "tam-ekran", "kucult", "yok"}) {
    d.uygulama->menuEylemi(e);
  }
  EXPECT_EQ(*d.gunluk,
            (std::vector<std::string>{"sistem.hakkinda", "sistem.gizle", "sistem.digerleriniGizle",
                                      "pencere.tamEkranDegistir", "pencere.kucult"}));
}

}  // namespace
}  // namespace nevo
