// The version and the help on the command line.
#include "app/komut_satiri.hpp"

#include <gtest/gtest.h>

namespace nevo {
namespace {

std::optional<std::string> iste(std::vector<std::string_view> argumanlar) {
  return bilgiIstegi(argumanlar, "1.2.3", "https://varsayilan.example/");
}

TEST(KomutSatiri, SurumSecenegiSurumuYazar) { EXPECT_EQ(iste({"--version"}), "nevo 1.2.3\n"); }

TEST(KomutSatiri, YardimSecenekleriYardimiYazar) {
  for (std::string_view secenek : {"--help", "-h", "-?"}) {
    auto yardim = iste({secenek});
    ASSERT_TRUE(yardim) << secenek;
    EXPECT_EQ(yardim->rfind("Kullanım: nevo ", 0), 0u) << *yardim;
    for (std::string_view parca : {"--version", "--help", "NEVO_ADRES", "nevo://",
                                   "https://varsayilan.example/", "tercihler.ini"}) {
      EXPECT_NE(yardim->find(parca), std::string::npos) << parca;
    }
  }
}

TEST(KomutSatiri, BaglantiVeSecenekYoksaKabukCalisir) {
  EXPECT_FALSE(iste({}));
  EXPECT_FALSE(iste({"nevo://auth/baglanti?kod=1"}));
  EXPECT_FALSE(iste({"--kisayol-basildi"}));
  EXPECT_FALSE(iste({"--versiyon", "--helpx", "-hh"}));
}

TEST(KomutSatiri, IlkIstekKazanir) {
  EXPECT_EQ(iste({"nevo://x", "--version", "--help"}), "nevo 1.2.3\n");
  EXPECT_EQ(iste({"--help", "--version"})->rfind("Kullanım", 0), 0u);
}

TEST(KomutSatiri, IkiTiredenSonrakilerSecenekDegildir) {
  EXPECT_FALSE(iste({"--", "--version"}));
  EXPECT_FALSE(iste({"nevo://x", "--", "--help"}));
}

}  // namespace
}  // namespace nevo
