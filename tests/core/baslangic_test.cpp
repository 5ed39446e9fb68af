// Launch at login.
#include <gtest/gtest.h>

#include "fakes/sahte_masaustu.hpp"
#include "fakes/sahte_sistem.hpp"

namespace nevo {
namespace {

struct BaslangicTesti : ::testing::Test {
  BaslangicTesti() { sistem.kimlik = "app.nevo.Nevo"; }
  sahte::SistemSahte sistem{std::make_shared<std::vector<std::string>>()};
  sahte::GirisOgesiSahte oge;
  Baslangic baslangic{oge, sistem};
};

TEST_F(BaslangicTesti, AcmakOnayBekliyorsaOnayMetniVeKapali) {
  oge.kayittanSonra = GirisOgesiDurumu::onayBekliyor;
  EXPECT_EQ(baslangic.ayarla(true),
            "macOS onay bekliyor: Sistem Ayarları › Genel › Giriş Öğeleri'nden Nevo'ye izin ver.");
  EXPECT_FALSE(baslangic.acik());
  EXPECT_EQ(baslangic.hata(), Baslangic::ONAY_BEKLIYOR);
}

TEST_F(BaslangicTesti, OnayBeklerkenKapatmakKaydiSilmez) {
  oge.suanki = GirisOgesiDurumu::onayBekliyor;
  EXPECT_EQ(baslangic.ayarla(false), Baslangic::ONAY_BEKLIYOR);
  EXPECT_EQ(oge.silmeler, 0);
  EXPECT_EQ(oge.suanki, GirisOgesiDurumu::onayBekliyor);
}

// Step 3 asks for `register` whenever the wanted state is on and the status is not
// enabled; a pending approval is not enabled.
TEST_F(BaslangicTesti, OnayBeklerkenAcmakKaydiYeniler) {
  oge.suanki = GirisOgesiDurumu::onayBekliyor;
  oge.kayittanSonra = GirisOgesiDurumu::onayBekliyor;
  EXPECT_EQ(baslangic.ayarla(true), Baslangic::ONAY_BEKLIYOR);
  EXPECT_EQ(oge.kayitlar, 1);
}

TEST_F(BaslangicTesti, ZatenOlanDurumIstenirseHicbirSeyCagrilmaz) {
  EXPECT_EQ(baslangic.ayarla(false), std::nullopt);
  oge.suanki = GirisOgesiDurumu::acik;
  EXPECT_EQ(baslangic.ayarla(true), std::nullopt);
  EXPECT_EQ(oge.kayitlar + oge.silmeler, 0);
}

TEST_F(BaslangicTesti, AcipKapatmak) {
  EXPECT_EQ(baslangic.ayarla(true), std::nullopt);
  EXPECT_TRUE(baslangic.acik());
  EXPECT_EQ(baslangic.ayarla(false), std::nullopt);
  EXPECT_FALSE(baslangic.acik());
  EXPECT_EQ(oge.kayitlar, 1);
  EXPECT_EQ(oge.silmeler, 1);
}

TEST_F(BaslangicTesti, KayitHatasiAciklamasiylaDonerDurumDegismez) {
  oge.hata = "izin yok";
  EXPECT_EQ(baslangic.ayarla(true), "macOS bu kaydı kabul etmedi: izin yok");
  EXPECT_FALSE(baslangic.acik());
  EXPECT_EQ(baslangic.hata(), std::nullopt);
}

TEST_F(BaslangicTesti, PaketKimligiYoksaHerSeyKapaliVeAyarlaDokunmaz) {
  sistem.kimlik.reset();
  oge.suanki = GirisOgesiDurumu::onayBekliyor;
  EXPECT_FALSE(baslangic.destekli());
  EXPECT_FALSE(baslangic.acik());
  EXPECT_EQ(baslangic.hata(), std::nullopt);
  EXPECT_EQ(baslangic.ayarla(true), std::nullopt);
  EXPECT_EQ(oge.kayitlar, 0);
}

TEST_F(BaslangicTesti, BulunamadiKapaliSayilir) {
  oge.suanki = GirisOgesiDurumu::bulunamadi;
  EXPECT_FALSE(baslangic.acik());
  EXPECT_EQ(baslangic.hata(), std::nullopt);
  baslangic.ayarla(true);
  EXPECT_EQ(oge.kayitlar, 1);
}

}  // namespace
}  // namespace nevo
