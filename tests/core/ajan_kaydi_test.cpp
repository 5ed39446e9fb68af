// The record of the running agent: its text, and which process is still the recorded one.
#include "agent/ajan_kaydi.hpp"

#include <gtest/gtest.h>

namespace nevo {
namespace {

const AjanKaydi KAYIT{4242, {"987654", "/usr/bin/node"}};

TEST(AjanKaydi, MetinNumaraBaslangicVeProgramSatirlaridir) {
  EXPECT_EQ(kayitMetni(KAYIT), "4242\n987654\n/usr/bin/node\n");
}

TEST(AjanKaydi, YazilanKayitAynenOkunur) {
  const auto okunan = kayitOku(kayitMetni(KAYIT));
  ASSERT_TRUE(okunan);
  EXPECT_EQ(okunan->numara, 4242);
  EXPECT_EQ(okunan->kimlik, KAYIT.kimlik);
}

TEST(AjanKaydi, SonSatirSonuOlmadanDaOkunur) {
  EXPECT_TRUE(kayitOku("4242\n987654\n/usr/bin/node"));
}

TEST(AjanKaydi, KayitOlmayanMetinOkunmaz) {
  for (const char* metin :
       {"", "\n", "4242\n987654\n", "4242\n987654\n/usr/bin/node\nfazla\n",
        "0\n987654\n/usr/bin/node\n", "-1\n987654\n/usr/bin/node\n",
        "-4242\n987654\n/usr/bin/node\n", "42a\n987654\n/usr/bin/node\n",
        " 42\n987654\n/usr/bin/node\n", "\n987654\n/usr/bin/node\n", "4242\n\n/usr/bin/node\n",
        "4242\n987654\n\n", "99999999999999999999999\n1\n/p\n"}) {
    EXPECT_FALSE(kayitOku(metin)) << metin;
  }
}

TEST(AjanKaydi, AyniBaslangicVeProgramAyniSurectir) {
  EXPECT_TRUE(halaAyniSurec(KAYIT, SurecKimligi{"987654", "/usr/bin/node"}));
}

TEST(AjanKaydi, NumarasiniBaskaSurecAlmissaAyniSurecDegildir) {
  EXPECT_FALSE(halaAyniSurec(KAYIT, SurecKimligi{"987655", "/usr/bin/node"}));
  EXPECT_FALSE(halaAyniSurec(KAYIT, SurecKimligi{"987654", "/usr/bin/sleep"}));
}

TEST(AjanKaydi, CalismayanSurecAyniSurecDegildir) {
  EXPECT_FALSE(halaAyniSurec(KAYIT, std::nullopt));
}

}  // namespace
}  // namespace nevo
