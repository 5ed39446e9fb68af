// The application with its local agent: started before any window, stopped at quit,
// paired for the page; incoming links carried into the page.
#include <gtest/gtest.h>

#include <string>

#include "fakes/sahte_ajan.hpp"
#include "fakes/uygulama_duzenegi.hpp"

namespace nevo {
namespace {

using sahte::AjanKurulumu;
using sahte::bekle;
using sahte::UygulamaDuzenegi;

constexpr const char* SONUC = "window.nevoEslestirmeSonucu && window.nevoEslestirmeSonucu(";

struct AjanliUygulama {
  AjanKurulumu k;
  UygulamaDuzenegi d{sahte::ADRES, linuxMetinleri(), k.yerler()};
  ~AjanliUygulama() { d.uygulama->ajaniDurdur(); }
};

TEST(UygulamaAjani, AjanMenudenVePenceredenOnceBaslar) {
  AjanliUygulama a;
  a.d.gunluk->clear();
  bool menudeAjanVardi = false;
  a.d.menu.kurulunca = [&] { menudeAjanVardi = a.d.uygulama->ajan().ajanSureci() != nullptr; };
  a.d.ac();
  EXPECT_TRUE(menudeAjanVardi);
  EXPECT_TRUE(a.k.calismaBekle(1));
}

TEST(UygulamaAjani, ReddedilenAdresAjaniDaDurdurur) {
  AjanKurulumu k;
  UygulamaDuzenegi d{"file:///yerel", linuxMetinleri(), k.yerler()};
  d.menu.kurulunca = [&] { EXPECT_NE(d.uygulama->ajan().ajanSureci(), nullptr); };
  EXPECT_THROW(d.ac(), sahte::OlumculHata);
  EXPECT_EQ(d.uygulama->ajan().ajanSureci(), nullptr);  // stopped before the shell ends
}

TEST(UygulamaAjani, CikisAjanaSigtermGonderir) {
  AjanliUygulama a;
  a.d.ac();
  ASSERT_TRUE(a.k.calismaBekle(1));
  const auto pid = a.k.calismalar().front();
  a.d.uygulama->applicationWillTerminate();
  EXPECT_EQ(a.d.uygulama->ajan().ajanSureci(), nullptr);
  EXPECT_TRUE(bekle([&] { return a.k.kayitVar(pid, "sigterm"); }));
}

TEST(UygulamaAjani, GecersizKodAyniAnSayfayaTirnaksizBildirilir) {
  AjanliUygulama a;
  a.d.paketliAc();
  a.d.mesaj(R"({"tur":"ajan-eslestir","kod":"ab-1"})");
  ASSERT_EQ(a.d.web().betikler.size(), 1u);
  EXPECT_EQ(a.d.web().betikler[0], std::string(SONUC) + "false, Kod geçersiz.)");
}

TEST(UygulamaAjani, EslestirmeSonucuKacirilmisAmaTirnaksizMetindir) {
  AjanliUygulama a;
  a.d.paketliAc();
  a.d.uygulama->kopru().eslestirmeCevapla(true, "1234");
  a.d.uygulama->kopru().eslestirmeCevapla(false, "a'b\n");
  EXPECT_EQ(a.d.web().betikler,
            (std::vector<std::string>{std::string(SONUC) + "true, 1234)",
                                      std::string(SONUC) + "false, a\\'b\\n)"}));
}

TEST(UygulamaAjani, BasariliEslestirmeSayfayaBildirilirAjaniBaslatir) {
  AjanliUygulama a;
  a.d.paketliAc();
  a.d.uygulama->ajaniDurdur();
  a.d.mesaj(R"({"tur":"ajan-eslestir","kod":"ab-12 cd"})");
  ASSERT_TRUE(bekle([&] {
    a.d.kuyruk.calistir();
    return !a.d.web().betikler.empty();
  }));
  EXPECT_EQ(a.d.web().betikler[0], std::string(SONUC) + "true, eşleşti AB12CD)");
  EXPECT_NE(a.d.uygulama->ajan().ajanSureci(), nullptr);
}

TEST(UygulamaAjani, WebGorunumuYokkenSonucDusurulur) {
  AjanliUygulama a;
  a.d.uygulama->kopru().eslestirmeCevapla(false, "x");  // before the window exists: nothing breaks
  a.d.ac();
  EXPECT_TRUE(a.d.web().betikler.empty());
}

TEST(UygulamaAjani, BaglantiAdresiSayfayaGiderPencereOneGelir) {
  UygulamaDuzenegi d;
  d.ac();
  d.gunluk->clear();
  d.uygulama->adresGeldi("nevo://auth/baglanti?kod=ABC&baglanti=tamam");
  EXPECT_EQ(d.web().betikler,
            (std::vector<std::string>{
                "window.nevoBaglantiDonusu && window.nevoBaglantiDonusu('ABC','tamam')"}));
  EXPECT_EQ(*d.gunluk, (std::vector<std::string>{"pencere.oneGetir", "sistem.etkinlestir"}));
}

TEST(UygulamaAjani, HicbirSeyTasimayanAdresDePencereyiOneGetirir) {
  UygulamaDuzenegi d;
  d.ac();
  d.gunluk->clear();
  d.uygulama->adresGeldi("nevo://auth/baglanti");
  d.uygulama->adresGeldi("nevo://oturum?access_token=a&refresh_token=b");
  EXPECT_TRUE(d.web().betikler.empty());
  EXPECT_EQ(d.gunluk->size(), 4u);
}

TEST(UygulamaAjani, OkunamayanAdresHicbirSeyYapmaz) {
  UygulamaDuzenegi d;
  d.ac();
  d.gunluk->clear();
  d.uygulama->adresGeldi(std::nullopt);
  d.uygulama->adresGeldi("nevo://o#access_token=\xff&refresh_token=b");
  EXPECT_TRUE(d.web().betikler.empty());
  EXPECT_TRUE(d.gunluk->empty());
}

}  // namespace
}  // namespace nevo
