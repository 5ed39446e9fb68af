// Telling the top page's own navigations from an embed's.
#include "app/pencere/ust_gezinme_izi.hpp"

#include <gtest/gtest.h>

#include <string>

namespace nevo {
namespace {

TEST(UstGezinmeIzi, DuyurulanAdresBirKezAnaCerceveninSayilir) {
  UstGezinmeIzi iz;
  iz.duyuruldu("https://odeme.example/al");
  EXPECT_TRUE(iz.karsila("https://odeme.example/al"));
  EXPECT_FALSE(iz.karsila("https://odeme.example/al"));
}

TEST(UstGezinmeIzi, DuyurulmayanAdresAnaCerceveninSayilmaz) {
  UstGezinmeIzi iz;
  iz.duyuruldu("https://odeme.example/al");
  EXPECT_FALSE(iz.karsila("https://gomulu.example/"));
  EXPECT_TRUE(iz.karsila("https://odeme.example/al"));
}

TEST(UstGezinmeIzi, AyniAdresIkiKezDuyurulursaIkiKezKarsilanir) {
  UstGezinmeIzi iz;
  iz.duyuruldu("https://a.example/");
  iz.duyuruldu("https://a.example/");
  EXPECT_TRUE(iz.karsila("https://a.example/"));
  EXPECT_TRUE(iz.karsila("https://a.example/"));
  EXPECT_FALSE(iz.karsila("https://a.example/"));
}

TEST(UstGezinmeIzi, KarsilanmayanDuyurularSinirdaEnEskisindenUnutulur) {
  UstGezinmeIzi iz;
  for (std::size_t i = 0; i <= UstGezinmeIzi::SINIR; ++i) {
    iz.duyuruldu("https://a.example/" + std::to_string(i));
  }
  EXPECT_FALSE(iz.karsila("https://a.example/0"));
  EXPECT_TRUE(iz.karsila("https://a.example/1"));
  EXPECT_TRUE(iz.karsila("https://a.example/" + std::to_string(UstGezinmeIzi::SINIR)));
}

}  // namespace
}  // namespace nevo
