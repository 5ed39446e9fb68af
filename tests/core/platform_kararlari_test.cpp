// What the core decides for the platform layers: the menu's one table, the window
// buttons, full screen by mode, the zoom's pace, the curtain's look and the window's
// remembered frame.
#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "app/pencere/menu_modeli.hpp"
#include "app/pencere/perde.hpp"
#include "app/pencere/serit.hpp"
#include "app/pencere/yerlesim.hpp"
#include "fakes/uygulama_duzenegi.hpp"

namespace nevo {
namespace {

using sahte::UygulamaDuzenegi;

std::vector<MenuOgesi> ogeler(const std::vector<AltMenu>& menu) {
  std::vector<MenuOgesi> sonuc;
  for (const auto& alt : menu) {
    for (const auto& oge : alt.ogeler) {
      if (!ayracMi(oge)) sonuc.push_back(oge);
    }
  }
  return sonuc;
}

// A point of the Bézier from (0, 0) to (1, 1), worked out here from its definition.
double bezier(double s, double ic1, double ic2) {
  return 3 * (1 - s) * (1 - s) * s * ic1 + 3 * (1 - s) * s * s * ic2 + s * s * s;
}

TEST(MenuTablosu, HerOgeSecicisiyle) {
  std::map<std::string, std::string> seciciler;
  for (const auto& oge : ogeler(anaMenu(macMetinleri()))) seciciler[oge.eylem] = oge.secici;
  EXPECT_EQ(seciciler, (std::map<std::string, std::string>{
                           {"hakkinda", "orderFrontStandardAboutPanel:"},
                           {"gizle", "hide:"},
                           {"digerlerini-gizle", "hideOtherApplications:"},
                           {"cik", "terminate:"},
                           {"geri-al", "undo:"},
                           {"yinele", "redo:"},
                           {"kes", "cut:"},
                           {"kopyala", "copy:"},
                           {"yapistir", "paste:"},
                           {"tumunu-sec", "selectAll:"},
                           {"yeniden-yukle", "yenidenYukle"},
                           {"tam-ekran", "toggleFullScreen:"},
                           {"kucult", "miniaturize:"},
                           {"kapat", "performClose:"},
                       }));
}

TEST(MenuTablosu, DuzenlemeKomutlariYalnizDuzenMenusunde) {
  std::map<std::string, std::string> komutlar;
  for (const auto& oge : ogeler(anaMenu(linuxMetinleri()))) {
    if (!oge.duzenlemeKomutu.empty()) komutlar[oge.eylem] = oge.duzenlemeKomutu;
  }
  EXPECT_EQ(komutlar, (std::map<std::string, std::string>{{"geri-al", "Undo"},
                                                          {"yinele", "Redo"},
                                                          {"kes", "Cut"},
                                                          {"kopyala", "Copy"},
                                                          {"yapistir", "Paste"},
                                                          {"tumunu-sec", "SelectAll"}}));
}

TEST(MenuTablosu, DigerleriniGizleYalnizMacteEtkin) {
  for (const auto& oge : ogeler(anaMenu(macMetinleri()))) EXPECT_TRUE(oge.etkin) << oge.eylem;
  for (const auto& oge : ogeler(anaMenu(linuxMetinleri()))) {
    EXPECT_EQ(oge.etkin, oge.eylem != eylem::DIGERLERINI_GIZLE) << oge.eylem;
  }
}

TEST(MenuTablosu, IkiPlatformdaAyniOgeler) {
  const auto mac = ogeler(anaMenu(macMetinleri()));
  const auto linuxOgeleri = ogeler(anaMenu(linuxMetinleri()));
  ASSERT_EQ(mac.size(), linuxOgeleri.size());
  for (size_t i = 0; i < mac.size(); ++i) {
    EXPECT_EQ(mac[i].baslik, linuxOgeleri[i].baslik);
    EXPECT_EQ(mac[i].eylem, linuxOgeleri[i].eylem);
    EXPECT_EQ(mac[i].tus, linuxOgeleri[i].tus);
  }
}

TEST(MenuTablosu, EylemeVeKomutaGoreBulunur) {
  const auto menu = anaMenu(linuxMetinleri());
  ASSERT_NE(eylemOgesi(menu, eylem::KOPYALA), nullptr);
  EXPECT_EQ(eylemOgesi(menu, eylem::KOPYALA)->baslik, "Kopyala");
  EXPECT_EQ(eylemOgesi(menu, "yok"), nullptr);
  EXPECT_EQ(eylemOgesi(menu, ""), nullptr);
  ASSERT_NE(duzenlemeOgesi(menu, "SelectAll"), nullptr);
  EXPECT_EQ(duzenlemeOgesi(menu, "SelectAll")->eylem, eylem::TUMUNU_SEC);
  EXPECT_EQ(duzenlemeOgesi(menu, ""), nullptr);
  EXPECT_EQ(duzenlemeOgesi(menu, "Delete"), nullptr);
}

TEST(MenuTablosu, KurulanMenuPlatformunTablosu) {
  UygulamaDuzenegi d;
  d.ac();
  const auto kurulan = ogeler(d.menu.kurulan);
  const auto tablo = ogeler(anaMenu(linuxMetinleri()));
  ASSERT_EQ(kurulan.size(), tablo.size());
  for (size_t i = 0; i < tablo.size(); ++i) {
    EXPECT_EQ(kurulan[i].secici, tablo[i].secici);
    EXPECT_EQ(kurulan[i].etkin, tablo[i].etkin);
  }
}

TEST(TamEkran, GirisSayfalarindaIstenmez) {
  UygulamaDuzenegi d;
  d.ac();
  d.uygulama->menuEylemi(eylem::TAM_EKRAN);  // before any page has set the mode
  d.adreseGit("https://app.nevo.ai/auth/login");
  d.uygulama->menuEylemi(eylem::TAM_EKRAN);
  EXPECT_EQ(d.pencere().sayi("tamEkranDegistir"), 0);
}

TEST(TamEkran, AnaKipteIstenir) {
  UygulamaDuzenegi d;
  d.ac();
  d.adreseGit("https://app.nevo.ai/home");
  d.uygulama->menuEylemi(eylem::TAM_EKRAN);
  EXPECT_EQ(d.pencere().sayi("tamEkranDegistir"), 1);
  d.adreseGit("https://app.nevo.ai/sign-up");
  d.uygulama->menuEylemi(eylem::TAM_EKRAN);
  EXPECT_EQ(d.pencere().sayi("tamEkranDegistir"), 1);
}

TEST(PencereDugmesi, KapatGizlerUygulamaSurer) {
  UygulamaDuzenegi d;
  d.ac();
  d.uygulama->pencereDugmesi(Dugme::Kapat);
  EXPECT_EQ(d.pencere().sayi("kapat"), 1);
  EXPECT_FALSE(d.pencere().gorunur());
  EXPECT_EQ(d.sistem.sonlandirmalar, 0);
}

TEST(PencereDugmesi, KucultSimgeDurumunaKucultur) {
  UygulamaDuzenegi d;
  d.ac();
  d.uygulama->pencereDugmesi(Dugme::Kucult);
  EXPECT_EQ(d.pencere().sayi("kucult"), 1);
  EXPECT_TRUE(d.pencere().canlandirmalar.empty());
}

TEST(PencereDugmesi, BuyutSeridinGecisiyleCanlanir) {
  UygulamaDuzenegi d;
  d.ac();
  d.uygulama->pencereDugmesi(Dugme::Buyut);
  ASSERT_EQ(d.pencere().canlandirmalar.size(), 1u);
  EXPECT_EQ(d.pencere().canlandirmalar[0].second, Serit::BUYUTME_SURESI);
  d.uygulama->pencereDugmesi(Dugme::Buyut);
  EXPECT_EQ(d.pencere().canlandirmalar.size(), 2u);
  EXPECT_FALSE(d.uygulama->serit()->buyutulmus());
}

TEST(PencereDugmesi, MenuDugmesiPencereyeDokunmaz) {
  UygulamaDuzenegi d;
  d.ac();
  d.gunluk->clear();
  d.uygulama->pencereDugmesi(Dugme::Menu);
  EXPECT_TRUE(d.gunluk->empty());
}

TEST(ZamanEgrisi, UclarTam) {
  const auto egri = Serit::BUYUTME_EGRISI;
  EXPECT_EQ(egri(0.0), 0.0);
  EXPECT_EQ(egri(1.0), 1.0);
  EXPECT_EQ(egri(-0.5), 0.0);
  EXPECT_EQ(egri(1.5), 1.0);
}

TEST(ZamanEgrisi, HepIlerler) {
  const auto egri = Serit::BUYUTME_EGRISI;
  double onceki = 0;
  for (int i = 1; i <= 1000; ++i) {
    const double deger = egri(i / 1000.0);
    EXPECT_GT(deger, onceki) << i;
    onceki = deger;
  }
}

// Ease-out: ahead of an even pace all the way, fast at first and slow at the end.
TEST(ZamanEgrisi, HizliBaslarYavasBiter) {
  const auto egri = Serit::BUYUTME_EGRISI;
  for (int i = 1; i < 100; ++i) EXPECT_GT(egri(i / 100.0), i / 100.0) << i;
  const double ilkAdim = egri(0.1) - egri(0.0);
  const double sonAdim = egri(1.0) - egri(0.9);
  EXPECT_GT(ilkAdim, 0.1);
  EXPECT_LT(sonAdim, 0.02);
  EXPECT_GT(ilkAdim, 5 * sonAdim);
}

// The platform that takes the control points and the one that takes the function run the
// same curve.
TEST(ZamanEgrisi, KontrolNoktalarininEgrisi) {
  const auto e = Serit::BUYUTME_EGRISI;
  for (int i = 0; i <= 100; ++i) {
    const double s = i / 100.0;
    EXPECT_NEAR(e(bezier(s, e.x1, e.x2)), bezier(s, e.y1, e.y2), 1e-9) << s;
  }
}

TEST(PerdeGorunumu, SimgeTabloBoyunda) {
  const auto y = perdeYerlesimi({880, 820});
  EXPECT_EQ(y.simge.en, Perde::SIMGE);
  EXPECT_EQ(y.simge.boy, Perde::SIMGE);
}

TEST(PerdeGorunumu, NeredeyseSiyah) {
  const Renk r = Perde::RENK;
  EXPECT_EQ(r.kirmizi, 0.02);
  EXPECT_EQ(r.yesil, 0.02);
  EXPECT_EQ(r.mavi, 0.03);
  EXPECT_EQ(cssRengi(r), "rgb(5,5,8)");
}

TEST(PencereTasarimi, CerceveAdiylaHatirlanir) {
  UygulamaDuzenegi d;
  d.ac();
  EXPECT_EQ(d.kurucu.tasarim.cerceveKayitAdi, "nevo-ana-pencere");
}

}  // namespace
}  // namespace nevo
