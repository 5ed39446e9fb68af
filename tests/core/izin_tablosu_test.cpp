// The one table of the permissions the web engine asks for.
#include "app/pencere/izin_tablosu.hpp"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace nevo {
namespace {

constexpr const char* UYGULAMA = "https://app.nevo.test/";

IzinKaynagi ustSayfa(const char* adres) { return {adres, true, std::nullopt}; }

const Izin YAKALAMALAR[] = {Izin::Mikrofon, Izin::Kamera, Izin::EkranPaylasimi};

TEST(IzinTablosu, UygulamaninUstSayfasiMikrofonKameraVeEkranAlir) {
  for (Izin izin : YAKALAMALAR) {
    EXPECT_TRUE(izinVerilir(izin, ustSayfa("https://app.nevo.test/sohbet"), UYGULAMA));
    EXPECT_TRUE(izinVerilir(izin, ustSayfa("http://APP.nevo.test:8080/"), UYGULAMA));
    EXPECT_TRUE(izinVerilir(izin, {"https://app.nevo.test/", true, "App.Nevo.Test"}, UYGULAMA));
  }
}

TEST(IzinTablosu, AltCerceveYakalayamaz) {
  for (Izin izin : YAKALAMALAR) {
    EXPECT_FALSE(izinVerilir(izin, {"https://app.nevo.test/", false, std::nullopt}, UYGULAMA));
    EXPECT_FALSE(izinVerilir(izin, {"https://app.nevo.test/", false, "app.nevo.test"}, UYGULAMA));
  }
}

TEST(IzinTablosu, BaskaHosttakiSayfaYakalayamaz) {
  for (Izin izin : YAKALAMALAR) {
    EXPECT_FALSE(izinVerilir(izin, ustSayfa("https://giris.saglayici.test/"), UYGULAMA));
    EXPECT_FALSE(izinVerilir(izin, ustSayfa("https://app.nevo.test.kotu.test/"), UYGULAMA));
    EXPECT_FALSE(izinVerilir(izin, {"https://app.nevo.test/", true, "baska.test"}, UYGULAMA));
    EXPECT_FALSE(izinVerilir(izin, ustSayfa("about:blank"), UYGULAMA));
    EXPECT_FALSE(izinVerilir(izin, {std::nullopt, true, std::nullopt}, UYGULAMA));
  }
}

TEST(IzinTablosu, HostsuzUygulamaAdresiHicKimseyeVermez) {
  EXPECT_FALSE(izinVerilir(Izin::Mikrofon, ustSayfa("https://app.nevo.test/"), "nevo:kotu"));
}

TEST(IzinTablosu, DigerIzinlerKimseyeVerilmez) {
  for (Izin izin : {Izin::AygitAdlari, Izin::Konum, Izin::FareKilidi, Izin::WebBildirimi,
                    Izin::PanoOkuma, Izin::KorumaliMedya, Izin::SiteVerisi, Izin::Diger}) {
    EXPECT_FALSE(izinVerilir(izin, ustSayfa("https://app.nevo.test/"), UYGULAMA));
  }
}

TEST(IzinTablosu, HerIzinBirKezVeGerekcesiyleYerAlir) {
  std::set<Izin> gorulen;
  std::set<std::string> adlar;
  for (const auto& satir : izinTablosu()) {
    EXPECT_TRUE(gorulen.insert(satir.izin).second);
    EXPECT_NE(std::string(satir.neden), "");
    if (satir.sorguAdi != nullptr) {
      EXPECT_TRUE(adlar.insert(satir.sorguAdi).second);
    }
  }
  EXPECT_EQ(gorulen.size(), static_cast<std::size_t>(Izin::Diger) + 1);
}

TEST(IzinTablosu, SorguTablonunKarariniSoyler) {
  const auto ust = ustSayfa("https://app.nevo.test/");
  EXPECT_EQ(sorguDurumu("microphone", ust, UYGULAMA), IzinDurumu::Verildi);
  EXPECT_EQ(sorguDurumu("camera", ust, UYGULAMA), IzinDurumu::Verildi);
  EXPECT_EQ(sorguDurumu("display-capture", ust, UYGULAMA), IzinDurumu::Verildi);
  EXPECT_EQ(sorguDurumu("geolocation", ust, UYGULAMA), IzinDurumu::Reddedildi);
  EXPECT_EQ(sorguDurumu("notifications", ust, UYGULAMA), IzinDurumu::Reddedildi);
  const auto baska = ustSayfa("https://giris.saglayici.test/");
  EXPECT_EQ(sorguDurumu("microphone", baska, UYGULAMA), IzinDurumu::Reddedildi);
}

TEST(IzinTablosu, TablodaOlmayanAdSorgulanmaz) {
  const auto ust = ustSayfa("https://app.nevo.test/");
  EXPECT_EQ(sorguDurumu("screen-wake-lock", ust, UYGULAMA), std::nullopt);
  EXPECT_EQ(sorguDurumu("Microphone", ust, UYGULAMA), std::nullopt);
  EXPECT_EQ(sorguDurumu("", ust, UYGULAMA), std::nullopt);
}

}  // namespace
}  // namespace nevo
