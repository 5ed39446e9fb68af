// Title strip.
#include "app/pencere/serit.hpp"

#include <gtest/gtest.h>

#include "fakes/uygulama_duzenegi.hpp"

namespace nevo {
namespace {

using sahte::UygulamaDuzenegi;

struct SeritTesti : ::testing::Test {
  SeritTesti() { d.ac(); }
  Serit& serit() { return *d.uygulama->serit(); }
  UygulamaDuzenegi d;
};

TEST_F(SeritTesti, TekBasisPencereyiSurukler) {
  EXPECT_TRUE(d.uygulama->seritBasildi(1));
  EXPECT_TRUE(d.pencere().canlandirmalar.empty());
  EXPECT_EQ(d.sistem.ciftTiklamaOkumalari, 0);
}

TEST_F(SeritTesti, UcluTiklamaSurukler) {
  EXPECT_TRUE(d.uygulama->seritBasildi(3));
  EXPECT_TRUE(d.pencere().canlandirmalar.empty());
  EXPECT_FALSE(serit().buyutulmus());
}

TEST_F(SeritTesti, TercihYokkenBuyutupTamOncekiCerceveyeDoner) {
  const Cerceve onceki{123, 45, 880, 820};
  d.pencere().suanki = onceki;
  d.pencere().ekran = Cerceve{0, 24, 1600, 976};
  EXPECT_FALSE(d.uygulama->seritBasildi(2));
  ASSERT_EQ(d.pencere().canlandirmalar.size(), 1u);
  EXPECT_EQ(d.pencere().canlandirmalar[0].first, (Cerceve{0, 24, 1600, 976}));
  EXPECT_DOUBLE_EQ(d.pencere().canlandirmalar[0].second, 0.24);
  EXPECT_TRUE(serit().buyutulmus());
  d.uygulama->seritBasildi(2);
  ASSERT_EQ(d.pencere().canlandirmalar.size(), 2u);
  EXPECT_EQ(d.pencere().canlandirmalar[1].first, onceki);
  EXPECT_FALSE(serit().buyutulmus());
}

TEST_F(SeritTesti, BaskaDegerYokGibiDavranir) {
  for (const char* deger : {"toggle-maximize", "Maximize", "Minimize", "None", "lower", ""}) {
    d.sistem.ciftTiklama = deger;
    const auto once = d.pencere().canlandirmalar.size();
    d.uygulama->seritBasildi(2);
    EXPECT_EQ(d.pencere().canlandirmalar.size(), once + 1) << deger;
    EXPECT_EQ(d.pencere().sayi("kucult"), 0) << deger;
  }
}

TEST_F(SeritTesti, KucultTercihiKucultur) {
  d.sistem.ciftTiklama = "minimize";
  d.uygulama->seritBasildi(2);
  EXPECT_EQ(d.pencere().sayi("kucult"), 1);
  EXPECT_TRUE(d.pencere().canlandirmalar.empty());
  EXPECT_FALSE(serit().buyutulmus());
}

TEST_F(SeritTesti, HicbiriTercihiHicbirSeyYapmaz) {
  d.sistem.ciftTiklama = "none";
  d.gunluk->clear();
  d.uygulama->seritBasildi(2);
  EXPECT_TRUE(d.gunluk->empty());
}

TEST_F(SeritTesti, TercihHerCiftTiklamadaYenidenOkunur) {
  d.sistem.ciftTiklama = "minimize";
  d.uygulama->seritBasildi(2);
  d.sistem.ciftTiklama.reset();
  d.uygulama->seritBasildi(2);
  EXPECT_EQ(d.sistem.ciftTiklamaOkumalari, 2);
  EXPECT_EQ(d.pencere().sayi("kucult"), 1);
  EXPECT_EQ(d.pencere().canlandirmalar.size(), 1u);
}

TEST_F(SeritTesti, EkrandaOlmayanPencereBuyumez) {
  d.pencere().ekran.reset();
  d.uygulama->seritBasildi(2);
  EXPECT_TRUE(d.pencere().canlandirmalar.empty());
  EXPECT_FALSE(serit().buyutulmus());
}

TEST_F(SeritTesti, BuyutDugmesiAyniGecis) {
  d.uygulama->pencereDugmesi(Dugme::Buyut);
  EXPECT_TRUE(serit().buyutulmus());
  d.uygulama->seritBasildi(2);
  EXPECT_FALSE(serit().buyutulmus());
}

TEST(Serit, MacSozcukleriBuyukHarfleDuyarli) {
  UygulamaDuzenegi d(sahte::ADRES, macMetinleri());
  d.ac();
  d.sistem.ciftTiklama = "Minimize";
  d.uygulama->seritBasildi(2);
  EXPECT_EQ(d.pencere().sayi("kucult"), 1);
  d.sistem.ciftTiklama = "minimize";
  d.uygulama->seritBasildi(2);
  EXPECT_EQ(d.pencere().sayi("kucult"), 1);
  EXPECT_EQ(d.pencere().canlandirmalar.size(), 1u);
}

}  // namespace
}  // namespace nevo
