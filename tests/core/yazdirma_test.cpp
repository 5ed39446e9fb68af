// The page's window.print() where the web view ignores it: the script and who is obeyed.
#include <gtest/gtest.h>

#include <string>

#include "app/pencere/yazdirma_betigi.hpp"
#include "core/js_motoru.hpp"
#include "fakes/uygulama_duzenegi.hpp"

namespace nevo {
namespace {

using sahte::UygulamaDuzenegi;

// A top page whose handler records what it is posted, and whose own print says so.
std::string sayfadaCalistir(const std::string& sonra) {
  const std::string sayfa = std::string(
                                "var gelenler=[];"
                                "var window={print:function(){gelenler.push('yerli');},"
                                "webkit:{messageHandlers:{'") +
                            YAZDIRMA_ISLEYICISI +
                            "':{postMessage:function(g){gelenler.push(g);}}}}};";
  return test::jsDegerlendir(sayfa + yazdirmaBetigi() + sonra + "gelenler");
}

TEST(Yazdirma, SayfaninPrintCagrisiIsleyiciyeGider) {
  EXPECT_EQ(sayfadaCalistir("window.print();window.print();"), R"(["",""])");
  EXPECT_EQ(sayfadaCalistir(""), "[]");
}

TEST(Yazdirma, IsleyiciSonradanGizlenseDeCagriGider) {
  EXPECT_EQ(sayfadaCalistir("window.webkit=undefined;window.print();"), R"([""])");
}

TEST(Yazdirma, SayfaKendiPrintiniKurarsaOnunkiCalisir) {
  EXPECT_EQ(sayfadaCalistir("window.print=function(){gelenler.push('sayfa');};window.print();"),
            R"(["sayfa"])");
}

TEST(Yazdirma, UygulamaninUstSayfasiYazdirmaPenceresiniAcar) {
  UygulamaDuzenegi d;
  d.paketliAc();
  d.uygulama->yazdirmaIstendi({true, "app.nevo.ai"});
  EXPECT_EQ(d.web().yazdirmalar, 1);
  d.uygulama->yazdirmaIstendi({true, "App.Nevo.AI"});
  EXPECT_EQ(d.web().yazdirmalar, 2);
}

TEST(Yazdirma, AltCerceveVeBaskaKokenDinlenmez) {
  UygulamaDuzenegi d;
  d.paketliAc();
  d.uygulama->yazdirmaIstendi({false, "app.nevo.ai"});
  d.uygulama->yazdirmaIstendi({true, "evil.supabase.co"});
  d.uygulama->yazdirmaIstendi({true, "app.nevo.ai.evil.com"});
  EXPECT_EQ(d.web().yazdirmalar, 0);
}

TEST(Yazdirma, GirisSaglayicisininSayfasiYazdiramaz) {
  UygulamaDuzenegi d;
  d.paketliAc();
  d.adreseGit("https://abc.supabase.co/auth");
  d.uygulama->yazdirmaIstendi({true, "abc.supabase.co"});
  d.uygulama->yazdirmaIstendi({true, "app.nevo.ai"});
  EXPECT_EQ(d.web().yazdirmalar, 0);
}

}  // namespace
}  // namespace nevo
