// The curtain's spinner the shell draws itself.
#include "app/pencere/donen.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace nevo {
namespace {

TEST(Donen, BasSaniyedeOnIkiKolIlerlerBirTurAtar) {
  EXPECT_EQ(donenAdimi(0), 0);
  EXPECT_EQ(donenAdimi(83'333), 0);
  EXPECT_EQ(donenAdimi(83'334), 1);
  EXPECT_EQ(donenAdimi(999'999), 11);
  EXPECT_EQ(donenAdimi(1'000'000), 0);
  EXPECT_EQ(donenAdimi(52'693'342'899), donenAdimi(52'693'342'899 - 1'000'000));
}

TEST(Donen, OnIkiKolMerkezdenDisariUzanirKareninIcindeKalir) {
  const double kenar = 18;
  const auto kollar = donenKollari(kenar, 0);
  ASSERT_EQ(kollar.size(), static_cast<size_t>(KOL_SAYISI));
  for (const auto& k : kollar) {
    const double ic = std::hypot(k.cizgi.x1 - 9, k.cizgi.y1 - 9);
    const double dis = std::hypot(k.cizgi.x2 - 9, k.cizgi.y2 - 9);
    EXPECT_LT(ic, dis);
    EXPECT_LE(dis + kolKalinligi(kenar) / 2, 9 + 1e-9);
  }
  // Spoke 0 points straight up.
  EXPECT_NEAR(kollar[0].cizgi.x2, 9, 1e-9);
  EXPECT_LT(kollar[0].cizgi.y2, 9);
}

TEST(Donen, BasOpaktirArkasindakilerGittikceSolar) {
  const auto kollar = donenKollari(18, 5);
  EXPECT_DOUBLE_EQ(kollar[5].opaklik, 1.0);
  // Clockwise behind the head: 4, 3, 2, 1, 0, 11, … each fainter than the one before.
  for (int geride = 1; geride < KOL_SAYISI; ++geride) {
    const int onceki = (5 - geride + 1 + KOL_SAYISI) % KOL_SAYISI;
    const int bu = (5 - geride + KOL_SAYISI) % KOL_SAYISI;
    EXPECT_LT(kollar[bu].opaklik, kollar[onceki].opaklik) << geride;
  }
  const auto enSoluk = std::min_element(kollar.begin(), kollar.end(),
                                        [](auto& a, auto& b) { return a.opaklik < b.opaklik; });
  EXPECT_EQ(enSoluk - kollar.begin(), 6);
  EXPECT_GT(enSoluk->opaklik, 0);
}

}  // namespace
}  // namespace nevo
