// The agent's environment: five built-in variables and the override file's lines over them.
#include "agent/ajan_ortami.hpp"

#include <gtest/gtest.h>

#include "fakes/sahte_ajan.hpp"

namespace nevo {
namespace {

using sahte::AjanKurulumu;
using sahte::dosyaYaz;

Ortam uygula(std::string_view metin) {
  Ortam ortam;
  ortamDosyasiniUygula(metin, ortam);
  return ortam;
}

TEST(AjanOrtami, DosyaYoksaTamOlarakBesYerlesikDegisken) {
  AjanKurulumu k;
  const auto ev = k.ev().string();
  EXPECT_EQ(ajanOrtami(k.yerler()), (Ortam{{"PATH", "/usr/bin:/bin:/usr/sbin:/sbin"},
                                           {"HOME", ev},
                                           {"KOPRU_ADRES", "wss://kopru.example/ajan"},
                                           {"KOPRU_KOK", ev + "/Nevo"},
                                           {"NEVO_VERI", ev + "/veri/Nevo"}}));
}

TEST(AjanOrtami, KaynakDiziniYoksaYerlesikDegiskenler) {
  EXPECT_EQ(ajanOrtami({std::nullopt, "/ev", "/ev/veri", "wss://x"}).size(), 5u);
}

TEST(AjanOrtami, DosyaKopruAdresiniDegistirirVeYeniDegiskenEkler) {
  AjanKurulumu k;
  dosyaYaz(k.kaynaklar / AJAN_ORTAM_DOSYASI, "KOPRU_ADRES=wss://yerel:9000\nEK=1\n");
  const auto ortam = ajanOrtami(k.yerler());
  EXPECT_EQ(ortam.at("KOPRU_ADRES"), "wss://yerel:9000");
  EXPECT_EQ(ortam.at("EK"), "1");
  EXPECT_EQ(ortam.size(), 6u);
}

TEST(AjanOrtami, SatirTablosu) {
  EXPECT_EQ(uygula("A=b=c"), (Ortam{{"A", "b=c"}}));
  EXPECT_EQ(uygula("A==b"), (Ortam{{"A", "=b"}}));
  EXPECT_EQ(uygula("A="), Ortam{});
  EXPECT_EQ(uygula("A"), Ortam{});
  EXPECT_EQ(uygula("=A=b"), (Ortam{{"A", "b"}}));
  EXPECT_EQ(uygula("==A=b"), (Ortam{{"A", "b"}}));
  EXPECT_EQ(uygula(" A = b"), (Ortam{{" A ", " b"}}));
  EXPECT_EQ(uygula("#X=1"), (Ortam{{"#X", "1"}}));
}

TEST(AjanOrtami, SonrakiSatirKazanir) { EXPECT_EQ(uygula("A=1\nA=2\n"), (Ortam{{"A", "2"}})); }

TEST(AjanOrtami, BosDegerYerlesikDegiskeniSilmez) {
  Ortam ortam{{"PATH", "/bin"}};
  ortamDosyasiniUygula("PATH=\n", ortam);
  EXPECT_EQ(ortam, (Ortam{{"PATH", "/bin"}}));
}

TEST(AjanOrtami, CrLfDosyasiTekSatirdir) {
  EXPECT_EQ(uygula("A=1\r\nB=2\r\n"), (Ortam{{"A", "1\r\nB=2\r\n"}}));
}

TEST(AjanOrtami, BosSatirlarAtlanir) {
  EXPECT_EQ(uygula("\n\nA=1\n\n\nB=2\n\n"), (Ortam{{"A", "1"}, {"B", "2"}}));
}

TEST(AjanOrtami, GecersizUtf8YalnizcaYerlesikleriBirakir) {
  AjanKurulumu k;
  dosyaYaz(k.kaynaklar / AJAN_ORTAM_DOSYASI, "A=1\nB=\xff\xfe\n");
  EXPECT_EQ(ajanOrtami(k.yerler()).size(), 5u);
  EXPECT_EQ(uygula("A=\xc3"), Ortam{});
}

TEST(AjanOrtami, BirlesikIsaretliEsittirAyracDegildir) {
  // "=" followed by a combining mark is one character that is not "=".
  EXPECT_EQ(uygula("A=\xcc\xb8"
                   "b=c"),
            (Ortam{{"A=\xcc\xb8"
                    "b",
                    "c"}}));
}

TEST(AjanOrtami, NulIcerenSatirAdiVeDegeriTasir) {
  EXPECT_EQ(uygula(std::string_view("A\0B=c\0d", 7)),
            (Ortam{{std::string("A\0B", 3), std::string("c\0d", 3)}}));
}

}  // namespace
}  // namespace nevo
