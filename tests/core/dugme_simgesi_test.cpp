// The glyphs the window buttons draw themselves.
#include "app/pencere/dugme_simgesi.hpp"

#include <gtest/gtest.h>

#include <cmath>

namespace nevo {
namespace {

bool kareninIcinde(const Cizgi& c, double kenar) {
  const double pay = simgeKalinligi(kenar) / 2;
  for (double v : {c.x1, c.y1, c.x2, c.y2}) {
    if (v - pay < 0 || v + pay > kenar) return false;
  }
  return true;
}

bool yatay(const Cizgi& c) { return c.y1 == c.y2 && c.x1 != c.x2; }

TEST(DugmeSimgesi, HerSimgeKareninIcindeKalir) {
  for (double kenar : {16.0, 24.0, 32.0}) {
    for (Dugme d : {Dugme::Menu, Dugme::Kucult, Dugme::Buyut, Dugme::Kapat}) {
      const auto cizgiler = dugmeSimgesi(d, kenar);
      ASSERT_FALSE(cizgiler.empty());
      for (const auto& c : cizgiler) EXPECT_TRUE(kareninIcinde(c, kenar)) << kenar;
    }
  }
}

TEST(DugmeSimgesi, KapatIkiKosegenliBirCarpidir) {
  const auto c = dugmeSimgesi(Dugme::Kapat, 16);
  ASSERT_EQ(c.size(), 2u);
  for (const auto& k : c) {
    EXPECT_DOUBLE_EQ(std::abs(k.x2 - k.x1), std::abs(k.y2 - k.y1));
    EXPECT_NE(k.x1, k.x2);
  }
  // The two strokes cross at the centre.
  EXPECT_DOUBLE_EQ((c[0].x1 + c[0].x2) / 2, 8);
  EXPECT_DOUBLE_EQ((c[1].y1 + c[1].y2) / 2, 8);
}

TEST(DugmeSimgesi, KucultAltYaridaTekYatayCizgidir) {
  const auto c = dugmeSimgesi(Dugme::Kucult, 16);
  ASSERT_EQ(c.size(), 1u);
  EXPECT_TRUE(yatay(c[0]));
  EXPECT_GT(c[0].y1, 8);
}

TEST(DugmeSimgesi, BuyutKapaliBirKaredir) {
  const auto c = dugmeSimgesi(Dugme::Buyut, 16);
  ASSERT_EQ(c.size(), 4u);
  for (size_t i = 0; i < c.size(); ++i) {
    const auto& sonraki = c[(i + 1) % c.size()];
    EXPECT_EQ(c[i].x2, sonraki.x1);
    EXPECT_EQ(c[i].y2, sonraki.y1);
  }
  EXPECT_DOUBLE_EQ(c[0].x2 - c[0].x1, c[1].y2 - c[1].y1);
}

TEST(DugmeSimgesi, MenuUcYatayCizgidir) {
  const auto c = dugmeSimgesi(Dugme::Menu, 16);
  ASSERT_EQ(c.size(), 3u);
  for (const auto& k : c) EXPECT_TRUE(yatay(k));
  EXPECT_LT(c[0].y1, c[1].y1);
  EXPECT_LT(c[1].y1, c[2].y1);
}

TEST(DugmeSimgesi, KalinlikKenarlaBuyur) {
  EXPECT_DOUBLE_EQ(simgeKalinligi(16), 1.5);
  EXPECT_DOUBLE_EQ(simgeKalinligi(32), 3);
}

}  // namespace
}  // namespace nevo
