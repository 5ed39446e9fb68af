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

TEST(KoyuTemaAdimi, SecimAyardanFarkliysaDegerKonur) {
  EXPECT_EQ(koyuTemaAdimi(RenkSemasi::Koyu, false, false), KoyuTemaAdimi::KoyuYap);
  EXPECT_EQ(koyuTemaAdimi(RenkSemasi::Acik, true, false), KoyuTemaAdimi::AcikYap);
  EXPECT_EQ(koyuTemaAdimi(RenkSemasi::Koyu, false, true), KoyuTemaAdimi::KoyuYap);
  EXPECT_EQ(koyuTemaAdimi(RenkSemasi::Acik, true, true), KoyuTemaAdimi::AcikYap);
}

TEST(KoyuTemaAdimi, AyarZatenSecimdeyseDokunulmaz) {
  EXPECT_EQ(koyuTemaAdimi(RenkSemasi::Koyu, true, false), KoyuTemaAdimi::Dokunma);
  EXPECT_EQ(koyuTemaAdimi(RenkSemasi::Acik, false, false), KoyuTemaAdimi::Dokunma);
  EXPECT_EQ(koyuTemaAdimi(RenkSemasi::Koyu, true, true), KoyuTemaAdimi::Dokunma);
  EXPECT_EQ(koyuTemaAdimi(RenkSemasi::Acik, false, true), KoyuTemaAdimi::Dokunma);
}

TEST(KoyuTemaAdimi, TercihsizlikYalnizKabugunKoydugunuGeriAlir) {
  EXPECT_EQ(koyuTemaAdimi(RenkSemasi::Tercihsiz, true, true), KoyuTemaAdimi::Sifirla);
  EXPECT_EQ(koyuTemaAdimi(RenkSemasi::Tercihsiz, false, true), KoyuTemaAdimi::Sifirla);
  EXPECT_EQ(koyuTemaAdimi(RenkSemasi::Tercihsiz, true, false), KoyuTemaAdimi::Dokunma);
  EXPECT_EQ(koyuTemaAdimi(RenkSemasi::Tercihsiz, false, false), KoyuTemaAdimi::Dokunma);
}

}  // namespace
}  // namespace nevo
