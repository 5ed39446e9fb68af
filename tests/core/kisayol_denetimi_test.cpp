// Shortcut validation.
#include "desktop/kisayol/kisayol_denetimi.hpp"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

namespace nevo {
namespace {

constexpr std::int64_t K = 40;  // the key "K"

TusBasimi tus(std::int64_t kod, std::uint64_t bayraklar, std::optional<std::string> k = "k") {
  return {kod, bayraklar, std::move(k)};
}

// One system shortcut on `kod` with `bitler`, as the system's settings hold it.
nlohmann::json sistem(std::int64_t kod, std::int64_t bitler, std::optional<bool> etkin = true) {
  nlohmann::json girdi{{"value", {{"parameters", {65535, kod, bitler}}}}};
  if (etkin) girdi["enabled"] = *etkin;
  return nlohmann::json{{"60", girdi}};
}

const auto& MAC = macKisayolMetinleri();
const auto& LINUX = linuxKisayolMetinleri();

TEST(KisayolDenetimi, YalinHarfVeShiftliHarfReddedilir) {
  const std::string mesaj = "Kısayolda ⌘, ⌥ ya da ⌃ tuşlarından en az biri olmalı.";
  EXPECT_EQ(kisayolDenetle(tus(K, 0), std::nullopt, MAC).mesaj, mesaj);
  EXPECT_EQ(kisayolDenetle(tus(K, bayrak::SHIFT), std::nullopt, MAC).mesaj, mesaj);
  EXPECT_FALSE(kisayolDenetle(tus(K, bayrak::SHIFT), std::nullopt, MAC).tamam);
}

TEST(KisayolDenetimi, YalnizCommandSistemeBakmadanReddedilir) {
  const std::string mesaj =
      "Yalnız ⌘ ile kurulan bir kısayol, bütün uygulamalarda o tuşu çalar. ⌥ ya da ⌃ ekle.";
  // The system's own settings would say something else: they are not looked at.
  const auto dolu = sistem(K, bayrak::COMMAND);
  EXPECT_EQ(kisayolDenetle(tus(K, bayrak::COMMAND), dolu, MAC).mesaj, mesaj);
  EXPECT_EQ(kisayolDenetle(tus(K, bayrak::COMMAND | bayrak::SHIFT), dolu, MAC).mesaj, mesaj);
}

TEST(KisayolDenetimi, OrnekKombinasyonlarMaskeVeAdVerir) {
  auto a = kisayolDenetle(tus(49, bayrak::CONTROL | bayrak::OPTION, " "), std::nullopt, MAC);
  EXPECT_TRUE(a.tamam);
  EXPECT_EQ(a.kod, 49);
  EXPECT_EQ(a.mod, 6144);
  EXPECT_EQ(a.ad, "⌃⌥Boşluk");
  auto b = kisayolDenetle(tus(K, bayrak::OPTION | bayrak::SHIFT), std::nullopt, MAC);
  EXPECT_EQ(b.mod, 2560);
  EXPECT_EQ(b.ad, "⌥⇧K");
  auto c = kisayolDenetle(tus(123, bayrak::COMMAND | bayrak::OPTION, ""), std::nullopt, MAC);
  EXPECT_EQ(c.mod, 2304);
  EXPECT_EQ(c.ad, "⌥⌘←");
}

TEST(KisayolDenetimi, BuyukHarfKilidiVeFonksiyonMaskeyeGirmez) {
  auto k = kisayolDenetle(tus(K, bayrak::CONTROL | bayrak::BUYUK_HARF_KILIDI | bayrak::FONKSIYON |
                                     bayrak::SAYI_TUSLARI),
                          std::nullopt, MAC);
  EXPECT_EQ(k.mod, 4096);
}

TEST(KisayolDenetimi, SistemKisayoluReddedilir) {
  const auto f = bayrak::CONTROL | bayrak::OPTION;
  EXPECT_EQ(kisayolDenetle(tus(K, f), sistem(K, f), MAC).mesaj,
            "Bu kısayolu macOS kullanıyor. Başka bir kombinasyon dene.");
  EXPECT_EQ(kisayolDenetle(tus(K, f), sistem(K, f), LINUX).mesaj,
            "Bu kısayolu sistem kullanıyor. Başka bir kombinasyon dene.");
}

TEST(KisayolDenetimi, KapaliSistemKisayoluEngellemez) {
  const auto f = bayrak::CONTROL | bayrak::OPTION;
  EXPECT_TRUE(kisayolDenetle(tus(K, f), sistem(K, f, false), MAC).tamam);
  // A missing "enabled", or one that is not a boolean, counts as enabled.
  EXPECT_FALSE(kisayolDenetle(tus(K, f), sistem(K, f, std::nullopt), MAC).tamam);
  auto yazi = sistem(K, f);
  yazi["60"]["enabled"] = "false";
  EXPECT_FALSE(kisayolDenetle(tus(K, f), yazi, MAC).tamam);
}

TEST(KisayolDenetimi, YalnizAlttakiBitlerdeFarkEngeller) {
  const auto f = bayrak::CONTROL | bayrak::OPTION;
  EXPECT_FALSE(kisayolDenetle(tus(K, f), sistem(K, f | 0x1234), MAC).tamam);
  EXPECT_TRUE(kisayolDenetle(tus(K, f), sistem(K, f | bayrak::FONKSIYON), MAC).tamam);
  EXPECT_TRUE(kisayolDenetle(tus(K, f), sistem(K, f | bayrak::BUYUK_HARF_KILIDI), MAC).tamam);
  EXPECT_TRUE(kisayolDenetle(tus(K, f), sistem(K, bayrak::CONTROL), MAC).tamam);
  EXPECT_TRUE(kisayolDenetle(tus(K + 1, f), sistem(K, f), MAC).tamam);
  // Bits above 31 are not compared.
  EXPECT_FALSE(kisayolDenetle(tus(K, f), sistem(K, f | (std::int64_t{1} << 33)), MAC).tamam);
}

TEST(KisayolDenetimi, BozukGirdilerAtlanir) {
  const auto f = bayrak::CONTROL | bayrak::OPTION;
  const auto bozuklar = nlohmann::json::parse(R"({
    "1": 5, "2": [1, 40, 786432], "3": {"value": 7}, "4": {"value": {"parameters": [1, 40]}},
    "5": {"value": {"parameters": [1, "40", 786432]}},
    "6": {"value": {"parameters": [1, 40.5, 786432]}},
    "7": {"value": {"parameters": [1, 40, -1]}}, "8": {"value": {}}, "9": {"enabled": false}
  })");
  EXPECT_TRUE(kisayolDenetle(tus(K, f), bozuklar, MAC).tamam);
  EXPECT_TRUE(kisayolDenetle(tus(K, f), nlohmann::json::array(), MAC).tamam);
  EXPECT_TRUE(kisayolDenetle(tus(K, f), std::nullopt, MAC).tamam);
}

TEST(KisayolDenetimi, TablodaOlmayanKaraktersizTusSoruIsaretiOlur) {
  EXPECT_EQ(kisayolDenetle(tus(105, bayrak::CONTROL, ""), std::nullopt, MAC).ad, "⌃?");
  EXPECT_EQ(kisayolDenetle(tus(105, bayrak::OPTION, std::nullopt), std::nullopt, MAC).ad, "⌥?");
}

TEST(KisayolDenetimi, TusAdiHerDilinHarfleriniBuyukYazar) {
  const auto ad = [](const char* karakterler) {
    return kisayolDenetle(tus(1, bayrak::CONTROL, karakterler), std::nullopt, MAC).ad;
  };
  EXPECT_EQ(ad("i"), "⌃I");  // the same under every locale, Turkish included
  EXPECT_EQ(ad("ı"), "⌃I");
  EXPECT_EQ(ad("ğ"), "⌃Ğ");
  EXPECT_EQ(ad("é"), "⌃É");
  EXPECT_EQ(ad("ß"), "⌃SS");
  EXPECT_EQ(ad("ж"), "⌃Ж");
  EXPECT_EQ(ad("7"), "⌃7");
}

TEST(KisayolDenetimi, EscapeBuradaKabulEdilir) {
  auto k = kisayolDenetle(tus(53, bayrak::CONTROL, "\x1b"), std::nullopt, MAC);
  EXPECT_TRUE(k.tamam);
  EXPECT_EQ(k.ad, "⌃⎋");
}

TEST(KisayolDenetimi, LinuxAdlariTusAdlariyla) {
  auto k = kisayolDenetle(
      tus(1, bayrak::CONTROL | bayrak::OPTION | bayrak::SHIFT | bayrak::COMMAND, "ş"), std::nullopt,
      LINUX);
  EXPECT_EQ(k.ad, "Ctrl+Alt+Shift+Super+Ş");
  EXPECT_EQ(k.mod, 4096 + 2048 + 512 + 256);
  EXPECT_EQ(kisayolDenetle(tus(K, bayrak::COMMAND), std::nullopt, LINUX).mesaj,
            "Yalnız Super ile kurulan bir kısayol, bütün uygulamalarda o tuşu çalar. Alt ya da "
            "Ctrl ekle.");
}

}  // namespace
}  // namespace nevo
