// The desktop's light or dark choice, read from the portal's value.
#include "desktop/renk_semasi.hpp"

#include <gtest/gtest.h>

namespace nevo {
namespace {

TEST(RenkSemasi, BirKoyuIkiAcikTercihEder) {
  EXPECT_EQ(renkSemasi(1u), RenkSemasi::Koyu);
  EXPECT_EQ(renkSemasi(2u), RenkSemasi::Acik);
}

TEST(RenkSemasi, SifirTercihsizdir) { EXPECT_EQ(renkSemasi(0u), RenkSemasi::Tercihsiz); }

TEST(RenkSemasi, BilinmeyenDegerVeDegersizlikTercihsizdir) {
  EXPECT_EQ(renkSemasi(3u), RenkSemasi::Tercihsiz);
  EXPECT_EQ(renkSemasi(4294967295u), RenkSemasi::Tercihsiz);
  EXPECT_EQ(renkSemasi(std::nullopt), RenkSemasi::Tercihsiz);
}

}  // namespace
}  // namespace nevo
