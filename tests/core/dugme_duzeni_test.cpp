// The Linux strip's window buttons, laid out as the desktop's button layout says.
#include "app/pencere/dugme_duzeni.hpp"

#include <gtest/gtest.h>

namespace nevo {
namespace {

using V = std::vector<Dugme>;

TEST(DugmeDuzeni, GtkVarsayilani) {
  const auto d = dugmeDuzeni("menu:minimize,maximize,close");
  EXPECT_EQ(d.sol, (V{Dugme::Menu}));
  EXPECT_EQ(d.sag, (V{Dugme::Kucult, Dugme::Buyut, Dugme::Kapat}));
}

TEST(DugmeDuzeni, SoldaKapatMacDuzeni) {
  const auto d = dugmeDuzeni("close,minimize,maximize:");
  EXPECT_EQ(d.sol, (V{Dugme::Menu, Dugme::Kapat, Dugme::Kucult, Dugme::Buyut}));
  EXPECT_TRUE(d.sag.empty());
}

TEST(DugmeDuzeni, GnomeAppmenuVeBilinmeyenAdlar) {
  const auto d = dugmeDuzeni("appmenu,icon:spacer,close,close");
  EXPECT_EQ(d.sol, (V{Dugme::Menu}));
  EXPECT_EQ(d.sag, (V{Dugme::Kapat}));
}

TEST(DugmeDuzeni, BosVeIkiNoktasiz) {
  EXPECT_EQ(dugmeDuzeni("").sol, (V{Dugme::Menu}));
  EXPECT_TRUE(dugmeDuzeni("").sag.empty());
  EXPECT_EQ(dugmeDuzeni("close").sol, (V{Dugme::Menu, Dugme::Kapat}));
}

TEST(DugmeDuzeni, KumeGenisligiDugmelerAraliklarVeKenarlar) {
  EXPECT_EQ(kumeGenisligi({}), 0);
  EXPECT_EQ(kumeGenisligi({Dugme::Kapat}), 8 + 22 + 8);
  EXPECT_EQ(kumeGenisligi({Dugme::Kucult, Dugme::Buyut, Dugme::Kapat}), 8 + 3 * 22 + 2 * 6 + 8);
}

}  // namespace
}  // namespace nevo
