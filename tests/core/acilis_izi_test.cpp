// The launch trace: one line per mark when on, in every locale the same, nothing when off.
#include "temel/acilis_izi.hpp"

#include <gtest/gtest.h>

#include <clocale>
#include <cstdio>
#include <regex>
#include <string>

namespace nevo {
namespace {

std::string yazilan(std::FILE* dosya) {
  std::rewind(dosya);
  std::string metin;
  for (int c = std::fgetc(dosya); c != EOF; c = std::fgetc(dosya)) metin += static_cast<char>(c);
  std::fclose(dosya);
  return metin;
}

TEST(AcilisIzi, AcikkenHerIsaretBirSatirdir) {
  std::FILE* dosya = std::tmpfile();
  ASSERT_NE(dosya, nullptr);
  const AcilisIzi iz(dosya, true);
  iz.isaret("menu", 1234.5678);
  iz.isaret("web gorunumu", 7.0);
  iz.isaret("yanit", 0.0004);
  EXPECT_EQ(yazilan(dosya),
            "nevo-acilis 1234.568 menu\nnevo-acilis 7.000 web gorunumu\nnevo-acilis 0.000 yanit\n");
}

TEST(AcilisIzi, KapaliykenHicbirSeyYazilmaz) {
  std::FILE* dosya = std::tmpfile();
  ASSERT_NE(dosya, nullptr);
  const AcilisIzi iz(dosya, false);
  iz.isaret("menu", 1.0);
  iz.isaret("solma");
  EXPECT_EQ(yazilan(dosya), "");
}

TEST(AcilisIzi, TurkceYerelAyardaDaNoktaYazilir) {
  ASSERT_NE(std::setlocale(LC_NUMERIC, "tr_TR.UTF-8"), nullptr);
  std::FILE* dosya = std::tmpfile();
  ASSERT_NE(dosya, nullptr);
  AcilisIzi(dosya, true).isaret("esleme", 41953120.559);
  std::setlocale(LC_NUMERIC, "C");
  EXPECT_EQ(yazilan(dosya), "nevo-acilis 41953120.559 esleme\n");
}

TEST(AcilisIzi, SimdikiAnAdimlaYazilir) {
  std::FILE* dosya = std::tmpfile();
  ASSERT_NE(dosya, nullptr);
  AcilisIzi(dosya, true).isaret("main");
  EXPECT_TRUE(std::regex_match(yazilan(dosya), std::regex("nevo-acilis [0-9]+\\.[0-9]{3} main\n")));
}

}  // namespace
}  // namespace nevo
