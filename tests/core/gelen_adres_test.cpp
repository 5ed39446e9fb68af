// Incoming links: connection results from the query, sessions from the fragment, and the
// page call each one becomes.
#include "agent/gelen_adres.hpp"

#include <gtest/gtest.h>

#include <string>

#include "bridge/sayfa_cagrilari.hpp"
#include "core/js_motoru.hpp"

namespace nevo {
namespace {

// The page call a link carries, as the bridge builds it, or nothing.
std::optional<std::string> gelenAdresBetigi(std::string_view adres) {
  if (baglantiAdresiMi(adres)) {
    const auto sonuc = baglantiOku(adres);
    if (!sonuc) return std::nullopt;
    return nevoBaglantiDonusu(sonuc->kod, sonuc->baglanti);
  }
  const auto jetonlar = oturumOku(adres);
  if (!jetonlar) return std::nullopt;
  return nevoOturumKur(jetonlar->erisim, jetonlar->yenileme);
}

std::string baglanti(const std::string& kod, const std::string& durum) {
  return "window.nevoBaglantiDonusu && window.nevoBaglantiDonusu('" + kod + "','" + durum + "')";
}
std::string oturum(const std::string& erisim, const std::string& yenileme) {
  return "window.nevoOturumKur && window.nevoOturumKur('" + erisim + "','" + yenileme + "')";
}

TEST(GelenAdres, BaglantiKodVeDurumuSirayla) {
  EXPECT_EQ(gelenAdresBetigi("nevo://auth/baglanti?kod=ABC&baglanti=tamam"),
            baglanti("ABC", "tamam"));
}

TEST(GelenAdres, BaglantiEksikDurumHataEksikKodBos) {
  EXPECT_EQ(gelenAdresBetigi("nevo://auth/baglanti?kod=ABC"), baglanti("ABC", "hata"));
  EXPECT_EQ(gelenAdresBetigi("nevo://auth/baglanti?baglanti=tamam"), baglanti("", "tamam"));
}

TEST(GelenAdres, SorgusuzBaglantiBetikUretmez) {
  EXPECT_EQ(gelenAdresBetigi("nevo://auth/baglanti"), std::nullopt);
  EXPECT_EQ(gelenAdresBetigi("nevo://auth/baglanti#kod=1"), std::nullopt);
}

TEST(GelenAdres, TekTirnakKacirilarakSaglamUlasir) {
  const auto betik = gelenAdresBetigi("nevo://auth/baglanti?kod=a'b%5C&baglanti=o'k");
  EXPECT_EQ(betik, baglanti("a\\'b\\\\", "o\\'k"));
  // Evaluated, the page receives the values as they were.
  EXPECT_EQ(test::jsDegerlendir("var window = this, alinan; window.nevoBaglantiDonusu = "
                                "function (a, b) { alinan = [a, b]; }; " +
                                *betik + "; alinan"),
            R"(["a'b\\","o'k"])");
}

TEST(GelenAdres, SorguOgeleriCozulurArtiIsaretiKalir) {
  EXPECT_EQ(gelenAdresBetigi("nevo://auth/baglanti?kod=a+b%20c&baglanti=%C5%9F&kod"),
            baglanti("", "ş"));
  EXPECT_EQ(gelenAdresBetigi("nevo://auth/baglanti?kod=a+b%20c&baglanti=%C5%9F"),
            baglanti("a+b c", "ş"));
}

TEST(GelenAdres, OturumYalnizcaIkiJetonuAktarir) {
  EXPECT_EQ(gelenAdresBetigi("nevo://oturum#access_token=E1&expires_in=3600&refresh_token=Y2"
                             "&token_type=bearer"),
            oturum("E1", "Y2"));
}

TEST(GelenAdres, SorgudakiJetonlarYokSayilir) {
  EXPECT_EQ(gelenAdresBetigi("nevo://oturum?access_token=E1&refresh_token=Y2"), std::nullopt);
}

TEST(GelenAdres, EsittirIcerenJetonParametresiYokSayilir) {
  EXPECT_EQ(gelenAdresBetigi("nevo://oturum#access_token=abc=&refresh_token=Y2"), std::nullopt);
}

TEST(GelenAdres, YuzdeKodluJetonCozulmusAktarilir) {
  EXPECT_EQ(gelenAdresBetigi("nevo://oturum#access_token=a%2Bb%2F&refresh_token=%C3%A7"),
            oturum("a+b/", "ç"));
  // A value that does not decode is forwarded as it is.
  EXPECT_EQ(gelenAdresBetigi("nevo://oturum#access_token=%zz&refresh_token=%ff"),
            oturum("%zz", "%ff"));
}

TEST(GelenAdres, ParcadakiBaglantiYoluDaBaglantiSayilir) {
  EXPECT_EQ(gelenAdresBetigi("nevo://x?kod=K#auth/baglanti"), baglanti("K", "hata"));
}

TEST(GelenAdres, IlkKareIsaretindenSonrasiParcadir) {
  EXPECT_EQ(gelenAdresBetigi("nevo://o#access_token=a#b&refresh_token=c"), oturum("a#b", "c"));
}

TEST(GelenAdres, SemaDenetlenmez) {
  EXPECT_EQ(gelenAdresBetigi("https://ornek/auth/baglanti?kod=1"), baglanti("1", "hata"));
  EXPECT_EQ(gelenAdresBetigi("mailto:x#access_token=a&refresh_token=b"), oturum("a", "b"));
}

TEST(GelenAdres, KotuGirdiCokmezVeBetikUretmez) {
  const std::string uzun = "nevo://auth/baglanti?kod=" + std::string(100 * 1024, 'a');
  EXPECT_EQ(gelenAdresBetigi(uzun), baglanti(std::string(100 * 1024, 'a'), "hata"));
  EXPECT_EQ(gelenAdresBetigi(std::string("nevo://auth/baglanti?kod=a\0b", 28)), std::nullopt);
  EXPECT_EQ(gelenAdresBetigi("nevo://auth/baglanti?kod=\xff"), std::nullopt);
  EXPECT_EQ(gelenAdresBetigi("nevo://auth/baglanti?kod=a b"), std::nullopt);
  EXPECT_EQ(gelenAdresBetigi(""), std::nullopt);
  EXPECT_EQ(gelenAdresBetigi("#"), std::nullopt);
  EXPECT_EQ(gelenAdresBetigi(std::string(100 * 1024, '#')), std::nullopt);
  EXPECT_EQ(gelenAdresBetigi(std::string(100 * 1024, '&')), std::nullopt);
}

// A NUL is a character like any other: a token that decodes to one is forwarded as it is.
TEST(GelenAdres, NulIcerenJetonOlduguGibiAktarilir) {
  const auto jetonlar = oturumOku("nevo:/m#access_token=a.b.c&refresh_token=r%00t");
  ASSERT_TRUE(jetonlar);
  EXPECT_EQ(jetonlar->erisim, "a.b.c");
  EXPECT_EQ(jetonlar->yenileme, std::string("r\0t", 3));
}

}  // namespace
}  // namespace nevo
