// The web process: a crashed page comes back by itself under the curtain (the third
// crash within a minute shows the offline page), a page that stops responding is
// restarted by reload, and the page sees keys before the menu while it responds.
#include <gtest/gtest.h>

#include "app/pencere/cevrimdisi_sayfa.hpp"
#include "fakes/uygulama_duzenegi.hpp"

namespace nevo {
namespace {

using sahte::UygulamaDuzenegi;

constexpr const char* SAYFA = "https://app.nevo.ai/home";

UygulamaDuzenegi& sayfada(UygulamaDuzenegi& d) {
  d.ac();
  d.web().suankiAdres = SAYFA;
  d.uygulama->sayfaIslendi();
  return d;
}

// The process ends and the same page shows again: the engine keeps the address.
void coker(UygulamaDuzenegi& d) { d.uygulama->webSureciBitti(); }

TEST(WebSureci, CokenSayfaPerdeAltindaKendiligindenGeriGelir) {
  UygulamaDuzenegi d;
  sayfada(d);
  d.perde().sondurmeyiBitir();
  d.perde().bagliMi = false;
  coker(d);
  EXPECT_EQ(d.perde().ortmeler, 1);
  EXPECT_TRUE(d.perde().bagliMi);
  ASSERT_EQ(d.web().yuklenenler.size(), 2u);
  EXPECT_EQ(d.web().yuklenenler.back(), SAYFA);
  EXPECT_TRUE(d.web().htmller.empty());
}

TEST(WebSureci, GeriGelenSayfaYineMetinGorununcePerdesiniKaldirir) {
  UygulamaDuzenegi d;
  sayfada(d);
  coker(d);
  d.uygulama->yuklemeBitti();
  d.web().cevapla(true);
  d.web().beklemeyiBitir(true);
  EXPECT_EQ(d.perde().sondurmeler.size(), 1u);
  d.perde().sondurmeyiBitir();
  EXPECT_EQ(d.perde().kaldirmalar, 1);
}

TEST(WebSureci, OncekiSayfaninSolmasiYeniPerdeyiKaldirmaz) {
  UygulamaDuzenegi d;
  sayfada(d);
  d.uygulama->perdeyiKaldir();
  coker(d);
  d.perde().sondurmeyiBitir();  // the fade that ran for the page before the crash
  EXPECT_EQ(d.perde().kaldirmalar, 0);
  EXPECT_TRUE(d.perde().bagliMi);
  d.uygulama->perdeyiKaldir();  // the page that came back shows text
  EXPECT_EQ(d.perde().sondurmeler.size(), 2u);
}

TEST(WebSureci, OncekiSayfaninSinamasiYeniPerdeyiKaldirmaz) {
  UygulamaDuzenegi d;
  sayfada(d);
  d.uygulama->yuklemeBitti();  // a probe of the page before the crash is under way
  coker(d);
  d.web().cevapla(true);
  EXPECT_TRUE(d.web().beklemeler.empty());
  d.kuyruk.ilerle(20);
  EXPECT_TRUE(d.perde().sondurmeler.empty());
  EXPECT_TRUE(d.web().sorular.empty());
}

TEST(WebSureci, BirDakikadaUcuncuCokmeCevrimdisiSayfaGosterir) {
  UygulamaDuzenegi d;
  sayfada(d);
  coker(d);
  d.kuyruk.ilerle(30);
  coker(d);
  EXPECT_TRUE(d.web().htmller.empty());
  d.kuyruk.ilerle(29.9);
  coker(d);
  ASSERT_EQ(d.web().htmller.size(), 1u);
  EXPECT_EQ(d.web().htmller[0], cevrimdisiSayfa(linuxMetinleri()));
  EXPECT_EQ(d.web().yuklenenler.size(), 3u);
}

TEST(WebSureci, BirDakikadanEskiCokmelerSayilmaz) {
  UygulamaDuzenegi d;
  sayfada(d);
  coker(d);
  d.kuyruk.ilerle(30);
  coker(d);
  d.kuyruk.ilerle(30);  // the first crash is a minute old
  coker(d);
  EXPECT_TRUE(d.web().htmller.empty());
  EXPECT_EQ(d.web().yuklenenler.back(), SAYFA);
  coker(d);
  EXPECT_EQ(d.web().htmller.size(), 1u);
}

TEST(WebSureci, AdressizCokenSayfaUygulamaAdresiniYukler) {
  UygulamaDuzenegi d;
  d.ac();
  d.web().suankiAdres.reset();
  coker(d);
  EXPECT_EQ(d.web().yuklenenler.back(), sahte::ADRES);
}

TEST(WebSureci, UcuncuCokmedenSonraYenidenYuklemeGosterilenAdresiYukler) {
  UygulamaDuzenegi d;
  sayfada(d);
  coker(d);
  coker(d);
  coker(d);
  d.web().suankiAdres = "about:blank";
  d.uygulama->sayfaIslendi();
  d.uygulama->menuEylemi("yeniden-yukle");
  EXPECT_EQ(d.web().yuklenenler.back(), SAYFA);
  EXPECT_EQ(d.web().yenilemeler, 0);
}

TEST(WebSureci, CevrimdisiSayfadaCokmeBasarisizAdresiUnutmaz) {
  UygulamaDuzenegi d;
  d.ac();
  d.uygulama->yuklemeBasarisiz(SAYFA);
  d.web().suankiAdres = "about:blank";
  d.uygulama->sayfaIslendi();
  d.uygulama->webSureciBitti();
  EXPECT_EQ(d.web().htmller.size(), 2u);
  d.uygulama->yenidenYukle();
  EXPECT_EQ(d.web().yuklenenler.back(), SAYFA);
}

TEST(WebSureci, YanitVermeyenSayfadaYenidenYuklemeSureciBitirirAdresiYukler) {
  UygulamaDuzenegi d;
  sayfada(d);
  d.uygulama->yanitVermiyor(true);
  d.uygulama->menuEylemi("yeniden-yukle");
  EXPECT_EQ(d.web().bitirilenSurecler, 1);
  EXPECT_EQ(d.web().yuklenenler.back(), SAYFA);
  EXPECT_EQ(d.web().yenilemeler, 0);
}

TEST(WebSureci, KabugunBitirdigiSurecCokmeSayilmaz) {
  UygulamaDuzenegi d;
  sayfada(d);
  for (int i = 0; i < 3; ++i) {
    d.uygulama->yanitVermiyor(true);
    d.uygulama->yenidenYukle();
    d.uygulama->webSureciBitti();
  }
  EXPECT_EQ(d.perde().ortmeler, 0);
  EXPECT_EQ(d.web().yuklenenler.size(), 4u);
  // The next two ends that the shell did not ask for are crashes again, and come back.
  coker(d);
  coker(d);
  EXPECT_EQ(d.perde().ortmeler, 2);
  EXPECT_TRUE(d.web().htmller.empty());
  coker(d);
  EXPECT_EQ(d.web().htmller.size(), 1u);
}

TEST(WebSureci, KullanicininYenilemesiCokmeSayilmaz) {
  UygulamaDuzenegi d;
  sayfada(d);
  for (int i = 0; i < 3; ++i) d.uygulama->menuEylemi("yeniden-yukle");
  coker(d);
  coker(d);
  EXPECT_TRUE(d.web().htmller.empty());
  EXPECT_EQ(d.web().yenilemeler, 3);
}

TEST(WebSureci, YanitVerenSayfadaYenidenYuklemeSureciBitirmez) {
  UygulamaDuzenegi d;
  sayfada(d);
  d.uygulama->yanitVermiyor(true);
  d.uygulama->yanitVermiyor(false);
  d.uygulama->yenidenYukle();
  EXPECT_EQ(d.web().bitirilenSurecler, 0);
  EXPECT_EQ(d.web().yenilemeler, 1);
}

TEST(WebSureci, YanitVermeyenCevrimdisiSayfadaBasarisizAdresYuklenir) {
  UygulamaDuzenegi d;
  d.ac();
  d.uygulama->yuklemeBasarisiz(SAYFA);
  d.web().suankiAdres = "about:blank";
  d.uygulama->yanitVermiyor(true);
  d.uygulama->yenidenYukle();
  EXPECT_EQ(d.web().bitirilenSurecler, 1);
  EXPECT_EQ(d.web().yuklenenler.back(), SAYFA);
}

TEST(WebSureci, AdressizYanitVermeyenSayfadaUygulamaAdresiYuklenir) {
  UygulamaDuzenegi d;
  d.ac();
  d.web().suankiAdres.reset();
  d.uygulama->yanitVermiyor(true);
  d.uygulama->yenidenYukle();
  EXPECT_EQ(d.web().yuklenenler.back(), sahte::ADRES);
}

TEST(WebSureci, SayfaYanitVerirkenTuslariOnceGorurYanitsizkenMenuHemenCalisir) {
  UygulamaDuzenegi d;
  sayfada(d);
  EXPECT_TRUE(d.uygulama->tusOnceSayfaya());
  d.uygulama->yanitVermiyor(true);
  EXPECT_FALSE(d.uygulama->tusOnceSayfaya());
  d.uygulama->yanitVermiyor(false);
  EXPECT_TRUE(d.uygulama->tusOnceSayfaya());
}

TEST(WebSureci, YeniSurecYanitVerirSayilir) {
  UygulamaDuzenegi d;
  sayfada(d);
  d.uygulama->yanitVermiyor(true);
  d.uygulama->yenidenYukle();
  EXPECT_TRUE(d.uygulama->tusOnceSayfaya());
  d.uygulama->yanitVermiyor(true);
  d.uygulama->webSureciBitti();
  EXPECT_TRUE(d.uygulama->tusOnceSayfaya());
}

}  // namespace
}  // namespace nevo
