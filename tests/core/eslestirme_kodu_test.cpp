// Pairing codes: normalised by user-perceived characters, upper-cased the same under every
// locale, 6 to 16 letters and numbers.
#include "agent/eslestirme_kodu.hpp"

#include <gtest/gtest.h>

#include <clocale>
#include <string>

namespace nevo {
namespace {

TEST(EslestirmeKodu, KucukHarfTireVeBoslukAtilirBuyukHarfeCevrilir) {
  EXPECT_EQ(eslestirmeKodu("ab-12 cd"), "AB12CD");
}

TEST(EslestirmeKodu, BesYaDaOnYediKarakterReddedilir) {
  EXPECT_EQ(eslestirmeKodu("ab-12 c"), std::nullopt);
  EXPECT_EQ(eslestirmeKodu("abcdefghijklmnopq"), std::nullopt);
  EXPECT_EQ(eslestirmeKodu(""), std::nullopt);
}

TEST(EslestirmeKodu, AltiVeOnAltiKarakterKabulEdilir) {
  EXPECT_EQ(eslestirmeKodu("a1b2c3"), "A1B2C3");
  EXPECT_EQ(eslestirmeKodu("a b-c d e-f g h i-j k l m-n o p"), "ABCDEFGHIJKLMNOP");
}

TEST(EslestirmeKodu, TurkceHarflerKorunurBuyukHarfeCevrilir) {
  EXPECT_EQ(eslestirmeKodu("şğçöü-12"), "ŞĞÇÖÜ12");
}

TEST(EslestirmeKodu, BuyutmeYerelAyardanBagimsizdir) {
  const std::string onceki = std::setlocale(LC_ALL, nullptr);
  std::setlocale(LC_ALL, "tr_TR.UTF-8");
  EXPECT_EQ(eslestirmeKodu("iiiııı"), "IIIIII");
  EXPECT_EQ(eslestirmeKodu("straße"), "STRASSE");
  std::setlocale(LC_ALL, onceki.c_str());
}

TEST(EslestirmeKodu, BuyutmeUzunlukSiniriniAsabilir) {
  // Eight "ß" become sixteen letters, nine become eighteen.
  EXPECT_EQ(eslestirmeKodu("ßßßßßßßß"), std::string(16, 'S'));
  EXPECT_EQ(eslestirmeKodu("ßßßßßßßßß"), std::nullopt);
}

TEST(EslestirmeKodu, BirlesikIsaretliHarfTekKarakterSayilir) {
  // Six letters each carrying a combining acute accent.
  std::string kod;
  for (int i = 0; i < 6; ++i) kod += "e\xcc\x81";
  std::string beklenen;
  for (int i = 0; i < 6; ++i) beklenen += "E\xcc\x81";
  EXPECT_EQ(eslestirmeKodu(kod), beklenen);
  EXPECT_EQ(eslestirmeKodu("\xcc\x81\xcc\x81"
                           "abcde"),
            std::nullopt);
}

TEST(EslestirmeKodu, EmojiVeSembollerAtilir) {
  EXPECT_EQ(eslestirmeKodu("👍🏽abc-def🇹🇷!€"), "ABCDEF");
  EXPECT_EQ(eslestirmeKodu("👍🏽👍🏽👍🏽👍🏽👍🏽👍🏽"), std::nullopt);
}

TEST(EslestirmeKodu, SecenekGibiGorunenKodlarTiresizKalir) {
  EXPECT_EQ(eslestirmeKodu("--inspect"), "INSPECT");
  EXPECT_EQ(eslestirmeKodu("-e"), std::nullopt);
  EXPECT_EQ(eslestirmeKodu("--require=/tmp/x"), "REQUIRETMPX");
}

TEST(EslestirmeKodu, CokUzunVeGecersizKodlarReddedilir) {
  EXPECT_EQ(eslestirmeKodu(std::string(10000, 'a')), std::nullopt);
  EXPECT_EQ(eslestirmeKodu(std::string(10000, '-') + "abcdef"), "ABCDEF");
  EXPECT_EQ(eslestirmeKodu("abc\xff"
                           "def"),
            std::nullopt);
  EXPECT_EQ(eslestirmeKodu(std::string("abc\0def", 7)), "ABCDEF");
}

TEST(EslestirmeKodu, BaskaYazilardakiRakamlarSayidir) {
  EXPECT_EQ(eslestirmeKodu("١٢٣abc"), "١٢٣ABC");
}

}  // namespace
}  // namespace nevo
