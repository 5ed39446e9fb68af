// The window's resize edges and corners.
#include "app/pencere/kenar.hpp"

#include <gtest/gtest.h>

namespace nevo {
namespace {

constexpr Olcu PENCERE{1080, 760};

TEST(Kenar, DortKenarBantIcinde) {
  EXPECT_EQ(kenarBul(PENCERE, 540, 0), Kenar::Ust);
  EXPECT_EQ(kenarBul(PENCERE, 540, 759), Kenar::Alt);
  EXPECT_EQ(kenarBul(PENCERE, 0, 380), Kenar::Sol);
  EXPECT_EQ(kenarBul(PENCERE, 1079, 380), Kenar::Sag);
  EXPECT_EQ(kenarBul(PENCERE, 540, KENAR_BANDI - 1), Kenar::Ust);
  EXPECT_EQ(kenarBul(PENCERE, 1080 - KENAR_BANDI, 380), Kenar::Sag);
}

TEST(Kenar, BandinDisiKenarDegil) {
  EXPECT_EQ(kenarBul(PENCERE, 540, KENAR_BANDI), std::nullopt);
  EXPECT_EQ(kenarBul(PENCERE, 1080 - KENAR_BANDI - 1, 380), std::nullopt);
  EXPECT_EQ(kenarBul(PENCERE, 540, 380), std::nullopt);
}

TEST(Kenar, DortKose) {
  EXPECT_EQ(kenarBul(PENCERE, 0, 0), Kenar::SolUst);
  EXPECT_EQ(kenarBul(PENCERE, 1079, 0), Kenar::SagUst);
  EXPECT_EQ(kenarBul(PENCERE, 0, 759), Kenar::SolAlt);
  EXPECT_EQ(kenarBul(PENCERE, 1079, 759), Kenar::SagAlt);
}

TEST(Kenar, KoseKenarBoyuncaPayKadarUzanir) {
  EXPECT_EQ(kenarBul(PENCERE, KOSE_PAYI - 1, 0), Kenar::SolUst);
  EXPECT_EQ(kenarBul(PENCERE, KOSE_PAYI, 0), Kenar::Ust);
  EXPECT_EQ(kenarBul(PENCERE, 0, KOSE_PAYI - 1), Kenar::SolUst);
  EXPECT_EQ(kenarBul(PENCERE, 0, KOSE_PAYI), Kenar::Sol);
  EXPECT_EQ(kenarBul(PENCERE, 1079, 760 - KOSE_PAYI), Kenar::SagAlt);
  EXPECT_EQ(kenarBul(PENCERE, 1080 - KOSE_PAYI, 759), Kenar::SagAlt);
  EXPECT_EQ(kenarBul(PENCERE, 1080 - KOSE_PAYI - 1, 759), Kenar::Alt);
}

TEST(Kenar, PencereninDisiKenarDegil) {
  EXPECT_EQ(kenarBul(PENCERE, -1, 0), std::nullopt);
  EXPECT_EQ(kenarBul(PENCERE, 0, -1), std::nullopt);
  EXPECT_EQ(kenarBul(PENCERE, 1080, 380), std::nullopt);
  EXPECT_EQ(kenarBul(PENCERE, 540, 760), std::nullopt);
  EXPECT_EQ(kenarBul({0, 0}, 0, 0), std::nullopt);
}

}  // namespace
}  // namespace nevo
