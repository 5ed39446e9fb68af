// jsKacir, checked by a real JavaScript engine over many generated strings.
#include "bridge/js_kacir.hpp"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <random>
#include <string>
#include <vector>

#include "core/js_motoru.hpp"

namespace nevo {
namespace {

// Pieces that exercise every escaped character and the usual troublemakers.
const std::vector<std::string>& parcalar() {
  static const std::vector<std::string> p{"\\",
                                          "\\\\",
                                          "\\\\\\",
                                          "'",
                                          "\\'",
                                          "\"",
                                          "\n",
                                          "\r",
                                          "\r\n",
                                          "\u2028",
                                          "\u2029",
                                          "\t",
                                          std::string(1, '\0'),
                                          "\x01",
                                          "\x1f",
                                          "\x7f",
                                          "</script>",
                                          "<!--",
                                          "${x}",
                                          "`",
                                          "\\u2028",
                                          "\\n",
                                          "ş",
                                          "Ğ",
                                          "İ",
                                          "ı",
                                          "ç",
                                          "ö",
                                          "ü",
                                          "🙂",
                                          "👩‍💻",
                                          "\u00a0",
                                          "\ufeff",
                                          "a",
                                          "Nevo",
                                          " ",
                                          "}",
                                          ")",
                                          "'); alert(1); ('"};
  return p;
}

std::string uret(std::mt19937& rastgele) {
  std::uniform_int_distribution<std::size_t> uzunluk(0, 12);
  std::uniform_int_distribution<std::size_t> secim(0, parcalar().size() - 1);
  std::string s;
  for (auto n = uzunluk(rastgele); n > 0; --n) s += parcalar()[secim(rastgele)];
  return s;
}

std::string geriOku(const std::string& s) {
  const auto sonuc = test::jsDegerlendir("'" + jsKacir(s) + "'");
  return nlohmann::json::parse(sonuc).get<std::string>();
}

TEST(JsKacir, TekTirnakliLiteraldeMetniAynenVerir) {
  std::mt19937 rastgele(20261122);
  for (int i = 0; i < 2000; ++i) {
    const auto s = uret(rastgele);
    ASSERT_EQ(geriOku(s), s) << "örnek " << i;
  }
}

// The escaping rule word for word: six whole-string replacements in order.
std::string altiAdim(std::string s) {
  const std::pair<std::string, std::string> adimlar[] = {
      {"\\", "\\\\"}, {"'", "\\'"},          {"\n", "\\n"},
      {"\r", "\\r"},  {"\u2028", "\\u2028"}, {"\u2029", "\\u2029"}};
  for (const auto& [eski, yeni] : adimlar) {
    for (auto k = s.find(eski); k != std::string::npos; k = s.find(eski, k + yeni.size())) {
      s.replace(k, eski.size(), yeni);
    }
  }
  return s;
}

TEST(JsKacir, AltiAdimliAlgoritmaylaAyniMetniVerir) {
  std::mt19937 rastgele(7);
  for (int i = 0; i < 5000; ++i) {
    const auto s = uret(rastgele);
    ASSERT_EQ(jsKacir(s), altiAdim(s)) << "örnek " << i;
  }
}

TEST(JsKacir, HerParcayiTekBasinaTasir) {
  for (const auto& p : parcalar()) EXPECT_EQ(geriOku(p), p);
}

TEST(SayfaCagrisi, KorumaliCagridir) {
  EXPECT_EQ(sayfaCagrisi("nevoKomut", metinArgumani("a'b")),
            "window.nevoKomut && window.nevoKomut('a\\'b')");
  EXPECT_EQ(test::jsDegerlendir("var window = {};" + sayfaCagrisi("nevoYok", "1")), "undefined");
}

}  // namespace
}  // namespace nevo
