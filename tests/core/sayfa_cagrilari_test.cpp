// The page calls and their escaping, checked by a real JavaScript engine over many generated
// strings: what the shell sends is what the page function receives.
#include "bridge/sayfa_cagrilari.hpp"

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

TEST(JsKacir, TersBoluVeTirnak) {
  EXPECT_EQ(jsKacir("\\'"), "\\\\\\'");
  EXPECT_EQ(jsKacir("\\'").size(), 4u);
}

TEST(JsKacir, SatirAyiriciyiAltiKarakterYaparCiftTirnagaDokunmaz) {
  EXPECT_EQ(jsKacir("a\u2028b"), "a\\u2028b");
  EXPECT_EQ(jsKacir("a\u2029b"), "a\\u2029b");
  EXPECT_EQ(jsKacir("\"x\""), "\"x\"");
}

TEST(JsKacir, YalnizAltiKarakteriKacirir) {
  EXPECT_EQ(jsKacir("a\nb\rc"), "a\\nb\\rc");
  EXPECT_EQ(jsKacir(std::string("\t<\x01>\0", 5)), std::string("\t<\x01>\0", 5));
  EXPECT_EQ(jsKacir(""), "");
  EXPECT_EQ(jsKacir("şğüİı 🙂"), "şğüİı 🙂");
}

// A page that records the arguments each of its functions received.
std::string sayfadaCalistir(const std::string& cagri) {
  return test::jsDegerlendir(
      "var window = this, alinan = null;"
      "['nevoMasaustuCevap', 'nevoKomut', 'nevoHizliMesaj', 'nevoBildirimDurumu',"
      " 'nevoEslestirmeSonucu', 'nevoBaglantiDonusu', 'nevoOturumKur'].forEach(function (ad) {"
      "  window[ad] = function () { alinan = [ad].concat(Array.prototype.slice.call(arguments)); };"
      "});" +
      cagri + "; alinan");
}

std::string alinan(const nlohmann::json& argumanlar) { return argumanlar.dump(); }

TEST(SayfaCagrilari, HerBiriKorumaliCagridir) {
  EXPECT_EQ(nevoMasaustuCevap(7, "{\"a\":1}"),
            "window.nevoMasaustuCevap && window.nevoMasaustuCevap(7, '{\"a\":1}')");
  EXPECT_EQ(nevoKomut("a'b"), "window.nevoKomut && window.nevoKomut('a\\'b')");
  EXPECT_EQ(nevoHizliMesaj("x\ny"), "window.nevoHizliMesaj && window.nevoHizliMesaj('x\\ny')");
  EXPECT_EQ(nevoBildirimDurumu("verildi"),
            "window.nevoBildirimDurumu && window.nevoBildirimDurumu('verildi')");
  EXPECT_EQ(nevoBaglantiDonusu("ABC", "tamam"),
            "window.nevoBaglantiDonusu && window.nevoBaglantiDonusu('ABC','tamam')");
  EXPECT_EQ(nevoOturumKur("E1", "Y2"), "window.nevoOturumKur && window.nevoOturumKur('E1','Y2')");
}

TEST(SayfaCagrilari, TanimsizIslevCagrilmaz) {
  EXPECT_EQ(test::jsDegerlendir("var window = {};" + nevoKomut("ayarlar")), "undefined");
  EXPECT_EQ(test::jsDegerlendir("var window = {};" + nevoOturumKur("a", "b")), "undefined");
}

TEST(SayfaCagrilari, TirnakliCagrilarHerMetniAynenUlastirir) {
  std::mt19937 rastgele(20261124);
  for (int i = 0; i < 500; ++i) {
    const auto s = uret(rastgele);
    ASSERT_EQ(sayfadaCalistir(nevoMasaustuCevap(-3, s)), alinan({"nevoMasaustuCevap", -3, s}));
    ASSERT_EQ(sayfadaCalistir(nevoKomut(s)), alinan({"nevoKomut", s}));
    ASSERT_EQ(sayfadaCalistir(nevoHizliMesaj(s)), alinan({"nevoHizliMesaj", s}));
    ASSERT_EQ(sayfadaCalistir(nevoBildirimDurumu(s)), alinan({"nevoBildirimDurumu", s}));
  }
}

bool satirSonuVar(const std::string& s) { return s.find_first_of("\r\n") != std::string::npos; }

// The links' smaller escaping passes line breaks through: a value holding one makes the
// whole script a syntax error, and the page hears nothing.
TEST(SayfaCagrilari, BaglantiCagrilariSatirSonuOlmayanMetniAynenUlastirir) {
  std::mt19937 rastgele(3);
  for (int i = 0; i < 500; ++i) {
    const auto a = uret(rastgele);
    const auto b = uret(rastgele);
    const auto donus = sayfadaCalistir(nevoBaglantiDonusu(a, b));
    const auto oturum = sayfadaCalistir(nevoOturumKur(a, b));
    if (satirSonuVar(a) || satirSonuVar(b)) {
      ASSERT_TRUE(donus.starts_with("exception: ")) << donus;
      ASSERT_TRUE(oturum.starts_with("exception: ")) << oturum;
    } else {
      ASSERT_EQ(donus, alinan({"nevoBaglantiDonusu", a, b}));
      ASSERT_EQ(oturum, alinan({"nevoOturumKur", a, b}));
    }
  }
}

TEST(SayfaCagrilari, BaglantiCagrisindaSatirSonuBetigiBastanReddettirir) {
  EXPECT_EQ(nevoBaglantiDonusu("a\nb", "c"),
            "window.nevoBaglantiDonusu && window.nevoBaglantiDonusu('a\nb','c')");
  EXPECT_TRUE(sayfadaCalistir(nevoBaglantiDonusu("a\rb", "c")).starts_with("exception: "));
  EXPECT_EQ(sayfadaCalistir(nevoOturumKur("a\u2028b", "c")),
            alinan({"nevoOturumKur", "a\u2028b", "c"}));
}

TEST(SayfaCagrilari, EslestirmeSonucuTirnaksizBirlestirmedir) {
  EXPECT_EQ(nevoEslestirmeSonucu(false, "Kod geçersiz."),
            "window.nevoEslestirmeSonucu && window.nevoEslestirmeSonucu(false, Kod geçersiz.)");
  EXPECT_EQ(nevoEslestirmeSonucu(true, "a'b\n"),
            "window.nevoEslestirmeSonucu && window.nevoEslestirmeSonucu(true, a\\'b\\n)");
}

TEST(SayfaCagrilari, EslestirmeSonucuIfadeyseDegeriUlasirDegilseSozdizimiHatasidir) {
  EXPECT_EQ(sayfadaCalistir(nevoEslestirmeSonucu(true, "1234")),
            alinan({"nevoEslestirmeSonucu", true, 1234}));
  EXPECT_EQ(sayfadaCalistir(nevoEslestirmeSonucu(true, "\"bağlandı\"")),
            alinan({"nevoEslestirmeSonucu", true, "bağlandı"}));
  EXPECT_TRUE(
      sayfadaCalistir(nevoEslestirmeSonucu(false, "Kod geçersiz.")).starts_with("exception: "));
}

}  // namespace
}  // namespace nevo
