// Sleep blocker.
#include <gtest/gtest.h>

#include "fakes/sahte_masaustu.hpp"

namespace nevo {
namespace {

struct UykuEngeliTesti : ::testing::Test {
  UykuEngeliTesti() { tercih.uyanikTut(true); }
  sahte::TercihDeposuSahte depo;
  Tercih tercih{depo};
  sahte::GucKilidiSahte kilit;
  UykuEngeli uyku{kilit, tercih};
};

TEST_F(UykuEngeliTesti, IkiIstenBiriCikincaKilitKalirIkinciCikincaSalinir) {
  uyku.ekle("a");
  uyku.ekle("b");
  EXPECT_TRUE(uyku.aktif());
  EXPECT_EQ(kilit.nedenler, (std::vector<std::string>{"Nevo: uzun gorev suruyor"}));
  uyku.cikar("a");
  EXPECT_TRUE(uyku.aktif());
  uyku.cikar("b");
  EXPECT_FALSE(uyku.aktif());
  EXPECT_EQ(kilit.birakilanlar, (std::vector<std::uint32_t>{1}));
}

TEST_F(UykuEngeliTesti, AyniIsIkiKezEklenipBirKezCikincaSalinir) {
  uyku.ekle("a");
  uyku.ekle("a");
  uyku.cikar("a");
  EXPECT_FALSE(uyku.aktif());
  EXPECT_EQ(kilit.nedenler.size(), 1u);
}

TEST_F(UykuEngeliTesti, TercihKapaliykenIslerIzlenirAcilincaHemenAlinirKapaninincaSalinir) {
  tercih.uyanikTut(false);
  uyku.ekle("a");
  EXPECT_FALSE(uyku.aktif());
  EXPECT_EQ(uyku.isSayisi(), 1u);
  tercih.uyanikTut(true);
  uyku.tercihDegisti();
  EXPECT_TRUE(uyku.aktif());
  tercih.uyanikTut(false);
  uyku.tercihDegisti();
  EXPECT_FALSE(uyku.aktif());
  EXPECT_EQ(kilit.birakilanlar.size(), 1u);
}

TEST_F(UykuEngeliTesti, SayfaYenilenirseBitisBildirilmeseDeSalinir) {
  uyku.ekle("a");
  uyku.temizle();
  EXPECT_FALSE(uyku.aktif());
  EXPECT_EQ(uyku.isSayisi(), 0u);
}

TEST_F(UykuEngeliTesti, ReddedilenKilitSessizdirSonrakiGuncellemeYenidenDener) {
  kilit.reddet = true;
  uyku.ekle("a");
  EXPECT_FALSE(uyku.aktif());
  kilit.reddet = false;
  uyku.ekle("b");
  EXPECT_TRUE(uyku.aktif());
  EXPECT_EQ(kilit.nedenler.size(), 2u);
}

TEST_F(UykuEngeliTesti, CevapGelenceyeKadarAktifDegildirVeIkinciIstekGitmez) {
  kilit.ertele = true;
  uyku.ekle("a");
  uyku.ekle("b");
  uyku.tercihDegisti();
  EXPECT_FALSE(uyku.aktif());
  EXPECT_EQ(kilit.nedenler.size(), 1u);
  kilit.cevapla();
  EXPECT_TRUE(uyku.aktif());
}

TEST_F(UykuEngeliTesti, GecReddedilenIstektenSonrakiGuncellemeYenidenDener) {
  kilit.ertele = true;
  kilit.reddet = true;
  uyku.ekle("a");
  kilit.cevapla();
  EXPECT_FALSE(uyku.aktif());
  kilit.reddet = false;
  uyku.tercihDegisti();
  EXPECT_EQ(kilit.nedenler.size(), 2u);
  kilit.cevapla();
  EXPECT_TRUE(uyku.aktif());
}

TEST_F(UykuEngeliTesti, ArtikIstenmezkenGelenKilitHemenGeriVerilir) {
  kilit.ertele = true;
  uyku.ekle("a");
  uyku.cikar("a");
  kilit.cevapla();
  EXPECT_FALSE(uyku.aktif());
  EXPECT_EQ(kilit.birakilanlar, (std::vector<std::uint32_t>{1}));
  EXPECT_EQ(kilit.tutulan, 0u);
}

TEST_F(UykuEngeliTesti, KaybolanKilitTutulmuyorSayilirSonrakiGuncellemeYenidenAlir) {
  uyku.ekle("a");
  kilit.kaybet();
  EXPECT_FALSE(uyku.aktif());
  uyku.ekle("b");
  EXPECT_TRUE(uyku.aktif());
  EXPECT_EQ(kilit.nedenler.size(), 2u);
  EXPECT_TRUE(kilit.birakilanlar.empty());
}

TEST_F(UykuEngeliTesti, YokEdildiktenSonraGelenCevapHicbirSeyeDokunmaz) {
  kilit.ertele = true;
  {
    UykuEngeli gecici{kilit, tercih};
    gecici.ekle("a");
  }
  kilit.cevapla();
  EXPECT_EQ(kilit.tutulan, 1u);
}

TEST_F(UykuEngeliTesti, KilitAslaIkiKezAlinmaz) {
  uyku.ekle("a");
  uyku.tercihDegisti();
  uyku.tercihDegisti();
  uyku.ekle("b");
  EXPECT_EQ(kilit.nedenler.size(), 1u);
}

TEST_F(UykuEngeliTesti, BilinmeyenIsiCikarmakZararsizdir) {
  uyku.cikar("yok");
  EXPECT_FALSE(uyku.aktif());
  EXPECT_TRUE(kilit.birakilanlar.empty());
}

}  // namespace
}  // namespace nevo
