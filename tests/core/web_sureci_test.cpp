// The web process: a crash shows the offline page, a page that stops responding is
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

TEST(WebSureci, CokenSurecCevrimdisiSayfaGosterir) {
  UygulamaDuzenegi d;
  sayfada(d);
  d.uygulama->webSureciBitti();
  ASSERT_EQ(d.web().htmller.size(), 1u);
  EXPECT_EQ(d.web().htmller[0], cevrimdisiSayfa(linuxMetinleri()));
}

TEST(WebSureci, CokmedenSonraYenidenYuklemeGosterilenAdresiYukler) {
  UygulamaDuzenegi d;
  sayfada(d);
  d.uygulama->webSureciBitti();
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
  d.uygulama->yanitVermiyor(true);
  d.uygulama->yenidenYukle();
  d.uygulama->webSureciBitti();
  EXPECT_TRUE(d.web().htmller.empty());
  // The next end that the shell did not ask for is a crash again.
  d.uygulama->webSureciBitti();
  EXPECT_EQ(d.web().htmller.size(), 1u);
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
