// Where the web view keeps website data: moved once from the engine's old place, and
// kept in memory when the place cannot be written.
#include "app/web_verisi.hpp"

#include <gtest/gtest.h>
#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace nevo {
namespace {

namespace fs = std::filesystem;

class WebVerisi : public ::testing::Test {
 protected:
  WebVerisi() {
    std::string sablon = (fs::temp_directory_path() / "nevo-web-XXXXXX").string();
    kok = mkdtemp(sablon.data());
  }
  ~WebVerisi() override {
    std::error_code hata;
    fs::remove_all(kok, hata);
  }
  static void yaz(const fs::path& yol, const std::string& metin) {
    fs::create_directories(yol.parent_path());
    std::ofstream(yol) << metin;
  }
  static std::string oku(const fs::path& yol) {
    std::ifstream dosya(yol);
    return {std::istreambuf_iterator<char>(dosya), std::istreambuf_iterator<char>()};
  }

  fs::path kok;
  fs::path eski() const { return kok / "nevo"; }
  fs::path yeni() const { return kok / "Nevo" / "web"; }
};

TEST_F(WebVerisi, EskiVeriYeniYereTasinir) {
  yaz(eski() / "storage" / "salt", "tuz");
  EXPECT_TRUE(eskiVeriyiTasi(eski(), yeni()));
  EXPECT_EQ(oku(yeni() / "storage" / "salt"), "tuz");
  EXPECT_FALSE(fs::exists(eski()));
}

TEST_F(WebVerisi, YeniYerVarsaHicbirSeyTasinmazDegismez) {
  yaz(eski() / "salt", "eski");
  yaz(yeni() / "salt", "yeni");
  EXPECT_FALSE(eskiVeriyiTasi(eski(), yeni()));
  EXPECT_EQ(oku(eski() / "salt"), "eski");
  EXPECT_EQ(oku(yeni() / "salt"), "yeni");
}

TEST_F(WebVerisi, YeniYerdeDosyaVarsaTasinmaz) {
  yaz(eski() / "salt", "eski");
  yaz(yeni(), "dosya");
  EXPECT_FALSE(eskiVeriyiTasi(eski(), yeni()));
  EXPECT_EQ(oku(yeni()), "dosya");
  EXPECT_TRUE(fs::exists(eski() / "salt"));
}

TEST_F(WebVerisi, EskiYerYoksaYaDizinDegilseTasinacakBirSeyYoktur) {
  EXPECT_FALSE(eskiVeriyiTasi(eski(), yeni()));
  yaz(eski(), "dosya");
  EXPECT_FALSE(eskiVeriyiTasi(eski(), yeni()));
  EXPECT_FALSE(fs::exists(yeni()));
}

TEST_F(WebVerisi, EksikDizinYapilirVeYazilabilir) {
  EXPECT_TRUE(yazilabilirDizin(yeni()));
  EXPECT_TRUE(fs::is_directory(yeni()));
  EXPECT_TRUE(fs::is_empty(yeni()));  // the trial file is gone
}

TEST_F(WebVerisi, YerindeDosyaOlanDizinYazilamaz) {
  yaz(yeni(), "dosya");
  EXPECT_FALSE(yazilabilirDizin(yeni()));
  EXPECT_EQ(oku(yeni()), "dosya");
  EXPECT_FALSE(yazilabilirDizin((yeni() / "alt").string()));
}

}  // namespace
}  // namespace nevo
