// Notifications.
#include <gtest/gtest.h>

#include <regex>

#include "fakes/uygulama_duzenegi.hpp"

namespace nevo {
namespace {

std::string durumBetigi(const std::string& kelime) {
  return "window.nevoBildirimDurumu && window.nevoBildirimDurumu('" + kelime + "')";
}

struct BildirimTesti : ::testing::Test {
  BildirimTesti() { d.paketliAc(); }
  sahte::UygulamaDuzenegi d;
};

TEST_F(BildirimTesti, DahaOnceReddedilmisIzinIstegiYeniSormadanReddedildiDer) {
  d.bildirim.suanki = BildirimYetkisi::reddedildi;
  d.uygulama->kopru().bildirimIzniIste();
  d.bildirim.izinCevabiniVer();
  d.kuyruk.calistir();
  EXPECT_EQ(d.bildirim.sorulanlar, 0);
  EXPECT_EQ(d.web().betikler, (std::vector<std::string>{durumBetigi("reddedildi")}));
}

TEST_F(BildirimTesti, HicSorulmadanDurumSorulmadiDir) {
  d.mesaj(R"({"tur":"bildirim-durum"})");
  d.kuyruk.calistir();
  EXPECT_EQ(d.web().betikler, (std::vector<std::string>{durumBetigi("sorulmadi")}));
}

TEST_F(BildirimTesti, IzinIstegiKullanicininCevabindanSonraSonucKelimesiniVerir) {
  d.bildirim.kullaniciCevabi = BildirimYetkisi::yetkili;
  d.mesaj(R"({"tur":"bildirim-izin-iste"})");
  d.kuyruk.calistir();
  EXPECT_TRUE(d.web().betikler.empty());  // waits for the user's answer
  d.bildirim.izinCevabiniVer();
  d.kuyruk.calistir();
  EXPECT_EQ(d.bildirim.sorulanlar, 1);
  EXPECT_EQ(d.web().betikler, (std::vector<std::string>{durumBetigi("verildi")}));
}

TEST_F(BildirimTesti, PaketKimligiCevaptaYenidenDenetlenir) {
  d.uygulama->kopru().bildirimIzniIste();
  d.sistem.kimlik.reset();
  d.bildirim.izinCevabiniVer();
  d.kuyruk.calistir();
  EXPECT_EQ(d.web().betikler, (std::vector<std::string>{durumBetigi("desteklenmiyor")}));
}

TEST(Bildirim, YetkiKelimeleri) {
  EXPECT_STREQ(bildirimKelimesi(BildirimYetkisi::yetkili), "verildi");
  EXPECT_STREQ(bildirimKelimesi(BildirimYetkisi::gecici), "verildi");
  EXPECT_STREQ(bildirimKelimesi(BildirimYetkisi::anlik), "verildi");
  EXPECT_STREQ(bildirimKelimesi(BildirimYetkisi::belirlenmedi), "sorulmadi");
  EXPECT_STREQ(bildirimKelimesi(BildirimYetkisi::reddedildi), "reddedildi");
  EXPECT_STREQ(bildirimKelimesi(BildirimYetkisi::bilinmeyen), "desteklenmiyor");
}

TEST_F(BildirimTesti, AyniMetinliIkiBildirimAyriKimliklerleGider) {
  d.mesaj(R"({"tur":"bildirim","baslik":"Bitti","govde":"Rapor hazır"})");
  d.mesaj(R"({"tur":"bildirim","baslik":"Bitti","govde":"Rapor hazır"})");
  ASSERT_EQ(d.bildirim.gonderilenler.size(), 2u);
  const auto& a = d.bildirim.gonderilenler[0];
  const auto& b = d.bildirim.gonderilenler[1];
  EXPECT_NE(a.kimlik, b.kimlik);
  const std::regex uuid("[0-9A-F]{8}-[0-9A-F]{4}-4[0-9A-F]{3}-[89AB][0-9A-F]{3}-[0-9A-F]{12}");
  EXPECT_TRUE(std::regex_match(a.kimlik, uuid)) << a.kimlik;
  EXPECT_EQ(a.baslik, "Bitti");
  EXPECT_EQ(b.govde, "Rapor hazır");
}

TEST_F(BildirimTesti, PencereKapaliykenTiklamaUygulamayiEtkinlestirirSayfayaGondermez) {
  d.pencere().kapat();
  d.gunluk->clear();
  ASSERT_TRUE(d.bildirim.tiklandi);
  d.bildirim.tiklandi();
  d.kuyruk.calistir();
  EXPECT_EQ(*d.gunluk, (std::vector<std::string>{"sistem.etkinlestir", "pencere.oneGetir"}));
  EXPECT_TRUE(d.web().betikler.empty());
}

TEST_F(BildirimTesti, IsBildirimlerininDugmeleriBaslarkenTanitilir) {
  EXPECT_EQ(d.bildirim.dugmeler, (std::vector<std::string>{"Klasörde göster"}));
}

TEST(Bildirim, PaketKimligiYoksaTemsilciOlunmaz) {
  sahte::UygulamaDuzenegi d;
  d.ac();
  EXPECT_FALSE(d.bildirim.tiklandi);
}

TEST_F(BildirimTesti, UygulamaYoksaDurumCevabiDusurulur) {
  d.uygulama->kopru().bildirimDurumu();
  d.uygulama.reset();
  EXPECT_NO_THROW(d.kuyruk.calistir());
}

TEST_F(BildirimTesti, DurumHerIstekteYenidenOkunur) {
  d.uygulama->kopru().bildirimDurumu();
  d.bildirim.suanki = BildirimYetkisi::yetkili;
  d.uygulama->kopru().bildirimDurumu();
  d.kuyruk.calistir();
  EXPECT_EQ(d.bildirim.yetkiOkumalari, 2);
  EXPECT_EQ(d.web().betikler,
            (std::vector<std::string>{durumBetigi("sorulmadi"), durumBetigi("verildi")}));
}

}  // namespace
}  // namespace nevo
