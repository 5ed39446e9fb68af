// betikSayisi: a number from a page's message reads as the page's JSON would write it.
#include "temel/json_sayisi.hpp"

#include <gtest/gtest.h>

#include <limits>

namespace nevo {
namespace {

TEST(JsonSayisi, SonsuzVeSayiOlmayanNullOlur) {
  EXPECT_TRUE(betikSayisi(std::numeric_limits<double>::quiet_NaN()).is_null());
  EXPECT_TRUE(betikSayisi(std::numeric_limits<double>::infinity()).is_null());
  EXPECT_TRUE(betikSayisi(-std::numeric_limits<double>::infinity()).is_null());
}

TEST(JsonSayisi, TamSayiTamsayiOlarakYazilir) {
  EXPECT_TRUE(betikSayisi(5.0).is_number_integer());
  EXPECT_EQ(betikSayisi(5.0).dump(), "5");
  EXPECT_EQ(betikSayisi(-0.0).dump(), "0");
  EXPECT_EQ(betikSayisi(-42.0).dump(), "-42");
  EXPECT_EQ(betikSayisi(9007199254740992.0).dump(), "9007199254740992");
}

TEST(JsonSayisi, KesirliVeCokBuyukSayiOndalikKalir) {
  EXPECT_TRUE(betikSayisi(2.5).is_number_float());
  EXPECT_DOUBLE_EQ(betikSayisi(2.5).get<double>(), 2.5);
  EXPECT_TRUE(betikSayisi(1e300).is_number_float());
}

}  // namespace
}  // namespace nevo
