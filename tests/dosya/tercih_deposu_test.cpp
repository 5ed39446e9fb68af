// The preference file: unreadable, broken, linked and moded files.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "desktop/tercih_deposu_gtk.hpp"
#include "fakes/gecici_dosyalar.hpp"

namespace nevo {
namespace {

namespace fs = std::filesystem;

using sahte::dosyaOku;

struct TercihDeposu : ::testing::Test {
  TercihDeposu() {
    dizin = sahte::bosDizin("tercih_deposu_");
    dosya = dizin / "tercihler.ini";
  }
  ~TercihDeposu() override {
    ::chmod(dosya.c_str(), 0600);
    fs::remove_all(dizin);
  }
  std::size_t girdiSayisi() const { return sahte::girdiSayisi(dizin); }
  fs::path dizin;
  fs::path dosya;
};

const char* const KAYITLI = "[Nevo]\nnevo.kisayol.kod=49\nnevo.menuCubugu=true\n";

TEST_F(TercihDeposu, OkunamayanDosyaYerindeKalirUzerineYazilmaz) {
  std::ofstream(dosya) << KAYITLI;
  ::chmod(dosya.c_str(), 0200);
  TercihDeposuGtk depo(dosya.string());
  EXPECT_EQ(depo.tamsayi("nevo.kisayol.kod"), std::nullopt);
  depo.mantiksalYaz("nevo.uyanikTut", true);
  ::chmod(dosya.c_str(), 0600);
  EXPECT_EQ(dosyaOku(dosya), KAYITLI);
  EXPECT_EQ(girdiSayisi(), 1u);
}

TEST_F(TercihDeposu, CozulemeyenDosyaKenaraAlinirYeniDosyaYazilir) {
  std::ofstream(dosya) << "bu bir anahtar dosyası değil\n[[[";
  TercihDeposuGtk depo(dosya.string());
  depo.mantiksalYaz("nevo.uyanikTut", true);
  EXPECT_EQ(depo.mantiksal("nevo.uyanikTut"), true);
  EXPECT_EQ(girdiSayisi(), 2u);
  bool kenarda = false;
  for (const auto& girdi : fs::directory_iterator(dizin)) {
    if (girdi.path().filename().string().starts_with("tercihler.ini.bozuk-")) {
      kenarda = dosyaOku(girdi.path()) == "bu bir anahtar dosyası değil\n[[[";
    }
  }
  EXPECT_TRUE(kenarda);
}

TEST_F(TercihDeposu, BagliDosyaninHedefineYazilirBagKalir) {
  fs::create_directories(dizin / "asil");
  std::ofstream(dizin / "asil" / "t.ini") << KAYITLI;
  fs::create_symlink("asil/t.ini", dosya);
  TercihDeposuGtk depo(dosya.string());
  depo.mantiksalYaz("nevo.uyanikTut", true);
  EXPECT_TRUE(fs::is_symlink(dosya));
  TercihDeposuGtk asil((dizin / "asil" / "t.ini").string());
  EXPECT_EQ(asil.mantiksal("nevo.uyanikTut"), true);
  EXPECT_EQ(asil.tamsayi("nevo.kisayol.kod"), 49);
}

TEST_F(TercihDeposu, YazmakDosyaIzinleriniKorur) {
  std::ofstream(dosya) << KAYITLI;
  ::chmod(dosya.c_str(), 0600);
  TercihDeposuGtk(dosya.string()).tamsayiYaz("nevo.mod", 2);
  struct stat bilgi {};
  ASSERT_EQ(::stat(dosya.c_str(), &bilgi), 0);
  EXPECT_EQ(bilgi.st_mode & 07777, 0600u);
  EXPECT_EQ(TercihDeposuGtk(dosya.string()).tamsayi("nevo.kisayol.kod"), 49);
}

TEST_F(TercihDeposu, DuzTamsayiMetninBasindakiSayiyiOkur) {
  std::ofstream(dosya) << "[Nevo]\nnevo.kisayol.mod=4096.0\nnevo.kisayol.kod=kirk\n";
  TercihDeposuGtk depo(dosya.string());
  EXPECT_EQ(depo.duzTamsayi("nevo.kisayol.mod"), 4096);
  EXPECT_EQ(depo.anlik()->duzTamsayi("nevo.kisayol.mod"), 4096);
  EXPECT_EQ(depo.duzTamsayi("nevo.kisayol.kod"), 0);
  EXPECT_EQ(depo.duzTamsayi("nevo.yok"), 0);
  EXPECT_EQ(depo.tamsayi("nevo.kisayol.mod"), std::nullopt);
}

TEST_F(TercihDeposu, YazmaGeciciDosyaBirakmaz) {
  TercihDeposuGtk depo(dosya.string());
  for (int i = 0; i < 5; ++i) depo.tamsayiYaz("nevo.mod", i);
  EXPECT_EQ(girdiSayisi(), 1u);
  EXPECT_EQ(depo.tamsayi("nevo.mod"), 4);
}

}  // namespace
}  // namespace nevo
