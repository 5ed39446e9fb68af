// Entry and lifecycle.
#include <gtest/gtest.h>

#include "app/giris.hpp"
#include "app/kip.hpp"
#include "fakes/uygulama_duzenegi.hpp"

namespace nevo {
namespace {

using sahte::UygulamaDuzenegi;

TEST(YasamDongusu, BosNevoAdresiBosAdresVerir) {
  EXPECT_EQ(adresSec("", "https://varsayilan/"), "");
  EXPECT_EQ(adresSec(" https://x/ ", "https://varsayilan/"), " https://x/ ");
}

TEST(YasamDongusu, DegiskenYoksaVarsayilanAdres) {
  EXPECT_EQ(adresSec(nullptr, "https://varsayilan/"), "https://varsayilan/");
}

TEST(YasamDongusu, BosYolVeKokGirisKipidir) {
  EXPECT_TRUE(girisKipiMi(""));
  EXPECT_TRUE(girisKipiMi("/"));
  EXPECT_EQ(adresinYolu(std::nullopt), "");
  EXPECT_EQ(adresinYolu("https://app.nevo.ai"), "");
}

TEST(YasamDongusu, KayitVeKimlikYollariGirisKipidir) {
  EXPECT_TRUE(girisKipiMi("/sign-up/step"));
  EXPECT_TRUE(girisKipiMi("/auth/callback"));
  EXPECT_TRUE(girisKipiMi("/authority"));  // a plain prefix test, deliberately
  EXPECT_FALSE(girisKipiMi("/home"));
  EXPECT_FALSE(girisKipiMi("/Auth"));  // case-sensitive
  EXPECT_FALSE(girisKipiMi("/x/auth"));
}

TEST(YasamDongusu, YalnizYolaBakilir) {
  EXPECT_EQ(adresinYolu("https://h/home?x=/auth#/auth"), "/home");
  EXPECT_EQ(adresinYolu("https://h/?next=/home"), "/");
  EXPECT_EQ(adresinYolu("https://h:8080/%61uth/x"), "/auth/x");  // decoded, as URL.path
}

TEST(YasamDongusu, WebinAdresiYokkenGirisKipi) {
  UygulamaDuzenegi d;
  d.ac();
  d.web().suankiAdres.reset();
  d.uygulama->adresDegisti();
  EXPECT_EQ(d.uygulama->girisKipi(), true);
}

TEST(YasamDongusu, IlkAdresDegisimiGirisKipiniYenidenUygular) {
  UygulamaDuzenegi d;
  d.ac();
  d.gunluk->clear();
  d.adreseGit("https://app.nevo.ai/");
  EXPECT_EQ(*d.gunluk, (std::vector<std::string>{"pencere.boyutlanabilir", "pencere.tamEkranIzni",
                                                 "pencere.icerikBoyutu", "pencere.ortala"}));
  EXPECT_FALSE(d.pencere().boyutlanabilirMi);
  EXPECT_FALSE(d.pencere().tamEkranIzinli);
  EXPECT_EQ(d.pencere().icerik, (Olcu{880, 820}));
}

TEST(YasamDongusu, CevrimdisiSayfaBasarisizAdresinKipindeKalir) {
  UygulamaDuzenegi d;
  d.ac();
  d.adreseGit("https://app.nevo.ai/");
  d.uygulama->yuklemeBasarisiz("https://app.nevo.ai/");
  d.gunluk->clear();
  d.adreseGit("about:blank");
  d.uygulama->sayfaIslendi();
  EXPECT_EQ(d.uygulama->girisKipi(), true);
  EXPECT_TRUE(d.gunluk->empty());
  EXPECT_EQ(d.pencere().icerik, (Olcu{880, 820}));
}

TEST(YasamDongusu, AnaKiptekiCevrimdisiSayfaAnaKipteKalir) {
  UygulamaDuzenegi d;
  d.ac();
  d.adreseGit("https://app.nevo.ai/home");
  d.uygulama->yuklemeBasarisiz("https://app.nevo.ai/home");
  d.adreseGit("about:blank");
  d.uygulama->sayfaIslendi();
  EXPECT_EQ(d.uygulama->girisKipi(), false);
  // Retrying the sign-in page from there gives the sign-in mode.
  d.uygulama->yuklemeBasarisiz("https://app.nevo.ai/auth");
  d.adreseGit("about:blank");
  EXPECT_EQ(d.uygulama->girisKipi(), true);
}

TEST(YasamDongusu, BasarisizAdresiOlmayanBosSayfaKipiDegistirmez) {
  UygulamaDuzenegi d;
  d.ac();
  d.adreseGit("https://app.nevo.ai/");
  d.gunluk->clear();
  d.adreseGit("about:blank");
  EXPECT_EQ(d.uygulama->girisKipi(), true);
  EXPECT_TRUE(d.gunluk->empty());
}

TEST(YasamDongusu, AnaKipBoyutlanirVeTamEkranaIzinVerir) {
  UygulamaDuzenegi d;
  d.ac();
  d.adreseGit("https://app.nevo.ai/home");
  EXPECT_EQ(d.uygulama->girisKipi(), false);
  EXPECT_TRUE(d.pencere().boyutlanabilirMi);
  EXPECT_TRUE(d.pencere().tamEkranIzinli);
  EXPECT_EQ(d.pencere().icerik, (Olcu{1080, 760}));
  d.adreseGit("https://app.nevo.ai/auth/login");
  EXPECT_EQ(d.pencere().icerik, (Olcu{880, 820}));
  EXPECT_FALSE(d.pencere().boyutlanabilirMi);
}

TEST(YasamDongusu, ArdisikAnaKipAdresleriPencereyeDokunmaz) {
  UygulamaDuzenegi d;
  d.ac();
  d.adreseGit("https://app.nevo.ai/home");
  d.gunluk->clear();
  d.adreseGit("https://app.nevo.ai/home/sohbet/4");
  d.adreseGit("https://app.nevo.ai/ayarlar");
  EXPECT_TRUE(d.gunluk->empty());
}

TEST(YasamDongusu, KapatilanPencereYenidenAcilir) {
  UygulamaDuzenegi d;
  d.ac();
  d.uygulama->menuEylemi("kapat");
  EXPECT_FALSE(d.pencere().gorunur());
  d.uygulama->applicationShouldHandleReopen(d.pencere().gorunur());
  EXPECT_TRUE(d.pencere().gorunur());
  const int once = d.pencere().sayi("oneGetir");
  d.uygulama->applicationShouldHandleReopen(true);
  EXPECT_EQ(d.pencere().sayi("oneGetir"), once);
}

// The page starts loading as soon as the web view exists, before the curtain is built.
TEST(YasamDongusu, AcilisSirasiMenuSonraPencere) {
  UygulamaDuzenegi d;
  d.ac();
  const std::vector<std::string> beklenen{"menu.kur",          "pencere.kur",    "web.adresYukle",
                                          "perde.kur",         "pencere.ortala", "pencere.oneGetir",
                                          "sistem.etkinlestir"};
  EXPECT_EQ(*d.gunluk, beklenen);
  EXPECT_FALSE(d.uygulama->girisKipi().has_value());  // decided at the first address change
}

TEST(YasamDongusu, PencereyiOneGetirOnceEtkinlestirir) {
  UygulamaDuzenegi d;
  d.ac();
  d.gunluk->clear();
  d.uygulama->pencereyiOneGetir();
  EXPECT_EQ(*d.gunluk, (std::vector<std::string>{"sistem.etkinlestir", "pencere.oneGetir"}));
}

}  // namespace
}  // namespace nevo
