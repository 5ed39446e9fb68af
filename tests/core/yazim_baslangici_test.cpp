// When spelling's dictionaries load.
#include "app/pencere/yazim_baslangici.hpp"

#include <gtest/gtest.h>

namespace nevo {
namespace {

TEST(YazimBaslangici, IzinSonraGelirseOdaktanSonraYuklenir) {
  YazimBaslangici b;
  EXPECT_FALSE(b.odaklandi());
  EXPECT_TRUE(b.izinVerildi());
}

TEST(YazimBaslangici, OdakSonraGelirseIzindenSonraYuklenir) {
  YazimBaslangici b;
  EXPECT_FALSE(b.izinVerildi());
  EXPECT_TRUE(b.odaklandi());
}

TEST(YazimBaslangici, YalnizBirKezYuklenir) {
  YazimBaslangici b;
  b.izinVerildi();
  EXPECT_TRUE(b.odaklandi());
  EXPECT_FALSE(b.odaklandi());
  EXPECT_FALSE(b.izinVerildi());
}

}  // namespace
}  // namespace nevo
