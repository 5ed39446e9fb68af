// The page's zoom: its steps, its preference and its keys.
#include "app/pencere/yakinlastirma.hpp"

#include <gtest/gtest.h>

#include "app/pencere/tus_komutlari.hpp"
#include "fakes/uygulama_duzenegi.hpp"

namespace nevo {
namespace {

using sahte::TercihDeposuSahte;

TEST(Yakinlastirma, KayitYoksaYuzde100) {
  TercihDeposuSahte depo;
  EXPECT_EQ(Yakinlastirma(depo).yuzde(), 100);
}

TEST(Yakinlastirma, AdimAdimBuyurVeSonAdimdaKalir) {
  TercihDeposuSahte depo;
  Yakinlastirma y(depo);
  std::vector<std::int64_t> adimlar;
  for (int i = 0; i < 9; ++i) adimlar.push_back(y.buyut());
  EXPECT_EQ(adimlar, (std::vector<std::int64_t>{110, 125, 150, 175, 200, 250, 300, 300, 300}));
  EXPECT_EQ(std::get<std::int64_t>(depo.degerler.at("nevo.yakinlastirma")), 300);
}

TEST(Yakinlastirma, AdimAdimKuculurVeIlkAdimdaKalir) {
  TercihDeposuSahte depo;
  Yakinlastirma y(depo);
  std::vector<std::int64_t> adimlar;
  for (int i = 0; i < 7; ++i) adimlar.push_back(y.kucult());
  EXPECT_EQ(adimlar, (std::vector<std::int64_t>{90, 80, 75, 67, 50, 50, 50}));
}

TEST(Yakinlastirma, SifirlamaYuzde100Yazar) {
  TercihDeposuSahte depo;
  depo.degerler["nevo.yakinlastirma"] = std::int64_t{250};
  EXPECT_EQ(Yakinlastirma(depo).sifirla(), 100);
  EXPECT_EQ(std::get<std::int64_t>(depo.degerler.at("nevo.yakinlastirma")), 100);
}

TEST(Yakinlastirma, AdimlarArasindakiDegerKomsuAdimaGider) {
  TercihDeposuSahte depo;
  depo.degerler["nevo.yakinlastirma"] = std::int64_t{133};
  EXPECT_EQ(Yakinlastirma(depo).buyut(), 150);
  depo.degerler["nevo.yakinlastirma"] = std::int64_t{133};
  EXPECT_EQ(Yakinlastirma(depo).kucult(), 125);
}

TEST(Yakinlastirma, SinirDisiVeyaTamsayiOlmayanKayitYuzde100Okunur) {
  for (TercihDeposuSahte::Deger d :
       {TercihDeposuSahte::Deger{std::int64_t{49}}, TercihDeposuSahte::Deger{std::int64_t{301}},
        TercihDeposuSahte::Deger{std::string("150")}, TercihDeposuSahte::Deger{1.5},
        TercihDeposuSahte::Deger{true}}) {
    TercihDeposuSahte depo;
    depo.degerler["nevo.yakinlastirma"] = d;
    EXPECT_EQ(Yakinlastirma(depo).yuzde(), 100);
  }
}

TEST(Yakinlastirma, TuslarArtiEsittirEksiSifirVeP) {
  std::vector<std::string> satirlar;
  for (const auto& k : tusKomutlari()) {
    std::string s = k.eylem + ":";
    for (const auto& c : k.karakterler) s += c;
    satirlar.push_back(s);
  }
  EXPECT_EQ(satirlar, (std::vector<std::string>{"yakinlastir:+=", "uzaklastir:-", "gercek-boyut:0",
                                                "yazdir:p"}));
}

TEST(Yakinlastirma, PencereKayitliYakinlikleAcilir) {
  sahte::UygulamaDuzenegi d;
  d.depo.degerler["nevo.yakinlastirma"] = std::int64_t{125};
  d.ac();
  EXPECT_EQ(d.web().yakinliklar, (std::vector<double>{1.25}));
}

TEST(Yakinlastirma, TuslarSayfayiYakinlastirirVeKaydeder) {
  sahte::UygulamaDuzenegi d;
  d.ac();
  d.uygulama->tusKomutu(eylem::YAKINLASTIR);
  d.uygulama->tusKomutu(eylem::YAKINLASTIR);
  d.uygulama->tusKomutu(eylem::UZAKLASTIR);
  d.uygulama->tusKomutu(eylem::GERCEK_BOYUT);
  EXPECT_EQ(d.web().yakinliklar, (std::vector<double>{1.0, 1.1, 1.25, 1.1, 1.0}));
  EXPECT_EQ(std::get<std::int64_t>(d.depo.degerler.at("nevo.yakinlastirma")), 100);
}

TEST(Yakinlastirma, YazdirTusuYazdirmaPenceresiniAcar) {
  sahte::UygulamaDuzenegi d;
  d.ac();
  d.uygulama->tusKomutu(eylem::YAZDIR);
  EXPECT_EQ(d.web().yazdirmalar, 1);
  d.uygulama->tusKomutu("bilinmeyen");
  EXPECT_EQ(d.web().yazdirmalar, 1);
  EXPECT_EQ(d.web().yakinliklar.size(), 1u);
}

}  // namespace
}  // namespace nevo
