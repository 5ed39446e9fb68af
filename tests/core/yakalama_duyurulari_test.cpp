// Telling the top page's capture requests from a sub-frame's where the engine does not.
#include "app/pencere/yakalama_duyurulari.hpp"

#include <gtest/gtest.h>

namespace nevo {
namespace {

TEST(YakalamaDuyurulari, DuyurulmamisIstekAltCerceveninDir) {
  YakalamaDuyurulari d;
  EXPECT_FALSE(d.istekGeldi());
}

TEST(YakalamaDuyurulari, HerDuyuruTekIstegeYeter) {
  YakalamaDuyurulari d;
  d.basladi(1);
  EXPECT_TRUE(d.istekGeldi());
  EXPECT_FALSE(d.istekGeldi());
  d.basladi(2);
  d.basladi(3);
  EXPECT_TRUE(d.istekGeldi());
  EXPECT_TRUE(d.istekGeldi());
  EXPECT_FALSE(d.istekGeldi());
}

TEST(YakalamaDuyurulari, CevaplananCagriSonrakiIstegiKarsilamaz) {
  YakalamaDuyurulari d;
  d.basladi(1);
  d.bitti(1);  // the engine answered without asking
  EXPECT_FALSE(d.istekGeldi());
}

TEST(YakalamaDuyurulari, IstegiAlinmisCagrininBitisiBaskasiniSilmez) {
  YakalamaDuyurulari d;
  d.basladi(1);
  d.basladi(2);
  EXPECT_TRUE(d.istekGeldi());
  d.bitti(7);
  EXPECT_TRUE(d.istekGeldi());
  EXPECT_FALSE(d.istekGeldi());
}

TEST(YakalamaDuyurulari, YeniBelgeBekleyenleriUnutur) {
  YakalamaDuyurulari d;
  d.basladi(1);
  d.sifirla();
  EXPECT_FALSE(d.istekGeldi());
}

TEST(YakalamaDuyurulari, SinirdanSonraEnEskiUnutulur) {
  YakalamaDuyurulari d;
  for (std::uint64_t i = 0; i <= YakalamaDuyurulari::EN_COK; ++i) d.basladi(i);
  d.bitti(0);  // already forgotten: nothing else goes
  for (std::size_t i = 0; i < YakalamaDuyurulari::EN_COK; ++i) EXPECT_TRUE(d.istekGeldi());
  EXPECT_FALSE(d.istekGeldi());
}

}  // namespace
}  // namespace nevo
