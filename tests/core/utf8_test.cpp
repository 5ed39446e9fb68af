// gecerliUtf8: text handed to the system's string type is always valid UTF-8.
#include "temel/utf8.hpp"

#include <gtest/gtest.h>

#include <string>

namespace nevo {
namespace {

using namespace std::string_literals;

const std::string YERINE = "\xEF\xBF\xBD";

TEST(Utf8, GecerliMetinAynenKalir) {
  EXPECT_EQ(gecerliUtf8("Yeniden yükle ⌘R — 🙂"), "Yeniden yükle ⌘R — 🙂");
  EXPECT_EQ(gecerliUtf8(""), "");
  EXPECT_EQ(gecerliUtf8("\xF4\x8F\xBF\xBF"), "\xF4\x8F\xBF\xBF");  // U+10FFFF
}

TEST(Utf8, NulBaytiMetniBitirmez) { EXPECT_EQ(gecerliUtf8("a\0b"s), "a\0b"s); }

TEST(Utf8, GecersizBaytYerineIsaretiOlur) {
  EXPECT_EQ(gecerliUtf8("a\xFF"
                        "b"),
            "a" + YERINE + "b");
  EXPECT_EQ(gecerliUtf8("\x80"), YERINE);
  EXPECT_EQ(gecerliUtf8("\xC0\xAF"), YERINE + YERINE);  // overlong "/"
}

TEST(Utf8, YarimKalanDiziYerineIsaretiOlur) {
  EXPECT_EQ(gecerliUtf8("ab\xE2\x8C"), "ab" + YERINE + YERINE);
  EXPECT_EQ(gecerliUtf8("\xF0\x9F\x99"), YERINE + YERINE + YERINE);
  EXPECT_EQ(gecerliUtf8("\xC3"
                        "a"),
            YERINE + "a");
}

TEST(Utf8, VekilVeSinirOtesiKodNoktalariReddedilir) {
  EXPECT_EQ(gecerliUtf8("\xED\xA0\x80"), YERINE + YERINE + YERINE);  // U+D800
  EXPECT_EQ(gecerliUtf8("\xF4\x90\x80\x80"), YERINE + YERINE + YERINE + YERINE);
  EXPECT_EQ(gecerliUtf8("\xE0\x80\xAF"), YERINE + YERINE + YERINE);  // overlong
  EXPECT_EQ(gecerliUtf8("\xF5\x80\x80\x80"), YERINE + YERINE + YERINE + YERINE);
}

}  // namespace
}  // namespace nevo
