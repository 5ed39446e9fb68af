// The languages spelling is checked in.
#include "app/pencere/yazim_dilleri.hpp"

#include <gtest/gtest.h>

namespace nevo {
namespace {

using Diller = std::vector<std::string>;

TEST(YazimDilleri, TurkceKullaniciyaTurkceVeIngilizce) {
  EXPECT_EQ(yazimDilleri("tr_TR.UTF-8"), (Diller{"tr_TR", "en_US"}));
  EXPECT_EQ(yazimDilleri("tr_TR"), (Diller{"tr_TR", "en_US"}));
  EXPECT_EQ(yazimDilleri("de_DE.UTF-8@euro"), (Diller{"de_DE", "en_US"}));
}

TEST(YazimDilleri, IngilizceBirKezVerilir) {
  EXPECT_EQ(yazimDilleri("en_US.UTF-8"), (Diller{"en_US"}));
}

TEST(YazimDilleri, DilsizYerelAyardaYalnizcaIngilizce) {
  EXPECT_EQ(yazimDilleri("C.UTF-8"), (Diller{"en_US"}));
  EXPECT_EQ(yazimDilleri("C"), (Diller{"en_US"}));
  EXPECT_EQ(yazimDilleri("POSIX"), (Diller{"en_US"}));
  EXPECT_EQ(yazimDilleri(""), (Diller{"en_US"}));
}

}  // namespace
}  // namespace nevo
