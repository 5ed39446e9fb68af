// Navigation policy and offline page.
#include "app/pencere/gezinme.hpp"

#include <gtest/gtest.h>

#include "app/pencere/cevrimdisi_sayfa.hpp"
#include "fakes/uygulama_duzenegi.hpp"

namespace nevo {
namespace {

using sahte::UygulamaDuzenegi;

bool kalir(const std::string& istek, const std::string& adres = "https://app.nevo.ai/") {
  return gorunumdeKalir(istek, adres, "supabase.co");
}

TEST(Gezinme, AyniHostBaskaYolGorunumdeKalir) {
  EXPECT_TRUE(kalir("https://app.nevo.ai/home/sohbet?x=1#y"));
}

TEST(Gezinme, AyniHostBaskaSemaVeyaPortGorunumdeKalir) {
  EXPECT_TRUE(kalir("http://app.nevo.ai/"));
  EXPECT_TRUE(kalir("https://app.nevo.ai:8443/home"));
  EXPECT_TRUE(kalir("wss://app.nevo.ai/"));
}

TEST(Gezinme, AltAlanAdiTarayiciyaGider) {
  UygulamaDuzenegi d;
  d.ac();
  EXPECT_FALSE(d.uygulama->gezinmeIzni("https://docs.app.nevo.ai/", {true, false}));
  EXPECT_EQ(d.sistem.disaridaAcilanlar, (std::vector<std::string>{"https://docs.app.nevo.ai/"}));
  EXPECT_FALSE(kalir("https://APP.nevo.ai/"));  // the engine reports hosts in lower case
}

TEST(Gezinme, BuyukHarfliUygulamaHostuMotorunKucukHarfliHostuylaEslesir) {
  EXPECT_TRUE(kalir("https://app.nevo.ai/home", "https://App.Nevo.AI/"));
  UygulamaDuzenegi d("https://APP.NEVO.AI/");
  d.ac();
  EXPECT_TRUE(d.uygulama->gezinmeIzni("https://app.nevo.ai/", {true, false}));
  EXPECT_TRUE(d.sistem.disaridaAcilanlar.empty());
}

GezinmeKarari karar(const std::string& istek, GezinmeKaynagi kaynak) {
  return gezinmeKarari(istek, "https://app.nevo.ai/", "supabase.co", kaynak);
}

TEST(Gezinme, YalnizWebVePostaAdresleriDisariCikar) {
  const GezinmeKaynagi ana{true, true};
  EXPECT_EQ(karar("https://example.com/", ana), GezinmeKarari::DisaridaAc);
  EXPECT_EQ(karar("http://example.com/", ana), GezinmeKarari::DisaridaAc);
  EXPECT_EQ(karar("mailto:destek@nevo.ai", ana), GezinmeKarari::DisaridaAc);
  for (const char* reddedilen :
       {"x-test:ac", "smb://sunucu/pay", "file:///etc/passwd", "data:text/html,x",
        "javascript:alert(1)", "HTTPS://example.com/", "/etc/passwd", "ht tp://bozuk"}) {
    EXPECT_EQ(karar(reddedilen, ana), GezinmeKarari::Iptal) << reddedilen;
  }
}

TEST(Gezinme, AltCercevedenBaskaHosteGezinmeHicbirSeyAcmaz) {
  EXPECT_EQ(karar("https://example.com/", {false, true}), GezinmeKarari::Iptal);
  EXPECT_EQ(karar("https://app.nevo.ai/gomulu", {false, false}), GezinmeKarari::Kal);
  // Where the engine does not name the frame, only a click or key press leaves the shell.
  EXPECT_EQ(karar("https://example.com/", {std::nullopt, false}), GezinmeKarari::Iptal);
  EXPECT_EQ(karar("https://example.com/", {std::nullopt, true}), GezinmeKarari::DisaridaAc);
  EXPECT_EQ(karar("https://example.com/", {true, false}), GezinmeKarari::DisaridaAc);
}

TEST(Gezinme, IptalEdilenGezinmeSistemeGitmez) {
  UygulamaDuzenegi d;
  d.ac();
  EXPECT_FALSE(d.uygulama->gezinmeIzni("x-test:ac", {true, true}));
  EXPECT_FALSE(d.uygulama->gezinmeIzni("https://example.com/", {false, true}));
  EXPECT_TRUE(d.sistem.disaridaAcilanlar.empty());
}

TEST(Gezinme, YeniPencereIstegiYalnizWebVePostaAdresleriniAcar) {
  UygulamaDuzenegi d;
  d.ac();
  for (const char* adres : {"data:text/html,x", "javascript:alert(1)", "smb://s/p", "/etc/passwd",
                            "x-test:ac", "mailto:a@b.c", "https://example.com/"}) {
    d.uygulama->yeniPencereIstendi(adres);
  }
  EXPECT_EQ(d.sistem.disaridaAcilanlar,
            (std::vector<std::string>{"mailto:a@b.c", "https://example.com/"}));
}

TEST(Gezinme, KimlikSaglayicisiGorunumdeKalir) {
  EXPECT_TRUE(kalir("https://supabase.co/auth"));
  EXPECT_TRUE(kalir("https://abcd.supabase.co/auth/v1/authorize"));
  EXPECT_TRUE(kalir("https://evilsupabase.co/"));  // a plain suffix test
  EXPECT_FALSE(kalir("https://supabase.com/"));
}

TEST(Gezinme, UygulamaninYaptigiBlobKalirBaskasininkiGider) {
  EXPECT_TRUE(kalir("blob:https://app.nevo.ai/6c1e-9a"));
  EXPECT_FALSE(kalir("blob:https://example.com/6c1e-9a"));
  EXPECT_FALSE(kalir("blob:null/6c1e-9a"));
  EXPECT_FALSE(kalir("blob:"));
}

TEST(Gezinme, AboutSayfalariKalirBaskaSemalarGider) {
  EXPECT_TRUE(kalir("about:blank"));
  EXPECT_FALSE(kalir("About:blank"));
  EXPECT_FALSE(kalir("mailto:destek@nevo.ai"));
  EXPECT_FALSE(kalir("https://example.com/"));
}

TEST(Gezinme, AdresYokVeyaHostsuzUygulamaAdresiIzinVerir) {
  EXPECT_TRUE(gorunumdeKalir(std::nullopt, "https://app.nevo.ai/", "supabase.co"));
  EXPECT_TRUE(kalir("https://example.com/", "file:///yerel/index.html"));
  EXPECT_TRUE(kalir("https://example.com/", "ht tp://bozuk"));
}

TEST(Gezinme, YeniPencereIstegiTarayiciyaGiderGorunumDegismez) {
  UygulamaDuzenegi d;
  d.ac();
  d.uygulama->yeniPencereIstendi("https://app.nevo.ai/paylas");
  d.uygulama->yeniPencereIstendi("https://example.com/");
  d.uygulama->yeniPencereIstendi(std::nullopt);
  EXPECT_EQ(d.sistem.disaridaAcilanlar,
            (std::vector<std::string>{"https://app.nevo.ai/paylas", "https://example.com/"}));
  EXPECT_EQ(d.web().yuklenenler.size(), 1u);  // only the first load
  EXPECT_TRUE(d.web().htmller.empty());
}

TEST(Gezinme, CevrimdisiSayfaUcSatir) {
  const std::string html = cevrimdisiSayfa(linuxMetinleri());
  EXPECT_NE(html.find("<body style=\"margin:0;height:100vh;display:grid;place-items:center;"
                      "background:#050507;color:#8a8f9a;font:15px -apple-system,system-ui\">"
                      "<div style=\"text-align:center\">"
                      "<div style=\"color:#e7e2d6;font-size:19px;margin-bottom:8px\">Bağlanamadım"
                      "</div><div>İnternet bağlantını kontrol edip tekrar dene.</div>"
                      "<div style=\"margin-top:18px;font-size:13px\">Ctrl+R ile yeniden dene</div>"
                      "</div></body>"),
            std::string::npos);
  EXPECT_EQ(html.find("<script"), std::string::npos);
  EXPECT_EQ(html.find("<a"), std::string::npos);
  EXPECT_NE(cevrimdisiSayfa(macMetinleri()).find(">⌘R ile yeniden dene<"), std::string::npos);
}

TEST(Gezinme, AgYokkenIlkYuklemeCevrimdisiSayfadaBiterYenidenYuklemeAdresiDener) {
  UygulamaDuzenegi d;
  d.ac();
  d.uygulama->yuklemeBasarisiz("https://app.nevo.ai/");
  ASSERT_EQ(d.web().htmller.size(), 1u);
  EXPECT_EQ(d.web().htmller[0], cevrimdisiSayfa(linuxMetinleri()));
  d.web().suankiAdres = "about:blank";
  d.uygulama->sayfaIslendi();
  d.uygulama->menuEylemi("yeniden-yukle");
  EXPECT_EQ(d.web().yuklenenler,
            (std::vector<std::string>{"https://app.nevo.ai/", "https://app.nevo.ai/"}));
  EXPECT_EQ(d.web().yenilemeler, 0);
}

TEST(Gezinme, BasariliSayfadaYenidenYuklemeSayfayiYeniler) {
  UygulamaDuzenegi d;
  d.ac();
  d.uygulama->yuklemeBasarisiz("https://app.nevo.ai/");
  d.web().suankiAdres = "https://app.nevo.ai/";
  d.uygulama->sayfaIslendi();
  d.uygulama->yenidenYukle();
  EXPECT_EQ(d.web().yenilemeler, 1);
  EXPECT_EQ(d.web().yuklenenler.size(), 1u);
}

TEST(Gezinme, IptalDahilHerHataCevrimdisiSayfaGosterir) {
  UygulamaDuzenegi d;
  d.ac();
  d.uygulama->yuklemeBasarisiz(std::nullopt);
  d.uygulama->yuklemeBasarisiz("https://app.nevo.ai/home");
  EXPECT_EQ(d.web().htmller.size(), 2u);
  d.uygulama->yenidenYukle();
  EXPECT_EQ(d.web().yuklenenler.back(), "https://app.nevo.ai/home");
}

TEST(Gezinme, KesilenYuklemeCevrimdisiSayfaGostermez) {
  UygulamaDuzenegi d;
  d.ac();
  d.web().suankiAdres = "https://app.nevo.ai/home";
  d.uygulama->sayfaIslendi();
  d.uygulama->yuklemeKesildi();
  EXPECT_TRUE(d.web().htmller.empty());
  d.uygulama->yenidenYukle();
  EXPECT_EQ(d.web().yenilemeler, 1);  // nothing counts as failed
}

}  // namespace
}  // namespace nevo
