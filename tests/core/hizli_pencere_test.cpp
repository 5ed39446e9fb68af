// The quick-entry panel.
#include "desktop/hizli_pencere.hpp"

#include <gtest/gtest.h>

#include "fakes/sahte_kisayol.hpp"

namespace nevo {
namespace {

struct HizliPanelTesti : ::testing::Test {
  HizliPanelTesti() {
    panel.gonderAyarla([this](const std::string& m) { gonderilenler.push_back(m); });
  }
  sahte::HizliGorunumSahte gorunum;
  HizliPencere panel{gorunum};
  std::vector<std::string> gonderilenler;
};

TEST_F(HizliPanelTesti, BosYaDaBoslukluMetinGonderilmez) {
  panel.ac();
  gorunum.yazVeGonder("");
  gorunum.yazVeGonder("  \n \t\n");
  EXPECT_TRUE(gorunum.acik);
  EXPECT_EQ(gorunum.alan, "  \n \t\n");
  EXPECT_TRUE(gonderilenler.empty());
}

TEST_F(HizliPanelTesti, UclardakiBosluklarKirpilirIcerdekilerKalir) {
  panel.ac();
  gorunum.yazVeGonder("  Merhaba  dünya 'x'\n");
  EXPECT_EQ(gonderilenler, (std::vector<std::string>{"Merhaba  dünya 'x'"}));
  EXPECT_FALSE(gorunum.acik);
  EXPECT_EQ(gorunum.alan, "");
}

TEST_F(HizliPanelTesti, UnicodeBosluklarDaKirpilir) {
  panel.ac();
  gorunum.yazVeGonder("\u00A0\u3000soru 😀\u2028");
  EXPECT_EQ(gonderilenler, (std::vector<std::string>{"soru 😀"}));
}

TEST_F(HizliPanelTesti, EscapeSonrasiYenidenAcilistaAlanBos) {
  panel.ac();
  gorunum.alan = "yarım kalan";
  gorunum.escape();
  panel.ac();
  EXPECT_TRUE(gorunum.acik);
  EXPECT_EQ(gorunum.alan, "");
  EXPECT_EQ(gorunum.gostermeler, 2);
}

TEST_F(HizliPanelTesti, AcKapatGorunurkenGizlerDegilkenAcar) {
  panel.acKapat();
  EXPECT_TRUE(gorunum.acik);
  panel.acKapat();
  EXPECT_FALSE(gorunum.acik);
  EXPECT_EQ(gorunum.gostermeler, 1);
}

TEST_F(HizliPanelTesti, OdakGidinceGizlenirSonrakiAcilisOrtalanarakGosterir) {
  panel.ac();
  gorunum.gizle();  // another application took the focus
  panel.acKapat();
  EXPECT_TRUE(gorunum.acik);
  EXPECT_EQ(gorunum.gostermeler, 2);
}

TEST_F(HizliPanelTesti, GonderYokkenDeGizlenir) {
  sahte::HizliGorunumSahte g;
  HizliPencere p{g};
  p.ac();
  g.yazVeGonder("a");
  EXPECT_FALSE(g.acik);
}

}  // namespace
}  // namespace nevo
