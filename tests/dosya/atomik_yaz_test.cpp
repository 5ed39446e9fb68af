// Atomic writes over links, modes and interrupted writes.
#include "temel/atomik_yaz.hpp"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "fakes/gecici_dosyalar.hpp"

namespace nevo {
namespace {

namespace fs = std::filesystem;

using sahte::bosDizin;
using sahte::dosyaOku;
using sahte::girdiSayisi;

TEST(AtomikYaz, YetkisizKullaniciIleCalisir) { EXPECT_NE(::geteuid(), 0u); }

TEST(AtomikYaz, BagliDosyaninHedefiYenilenirBagKalir) {
  const auto dizin = bosDizin("atomik_bag_");
  std::ofstream(dizin / "gercek") << "eski";
  fs::create_symlink("gercek", dizin / "bag");
  ASSERT_TRUE(atomikYaz((dizin / "bag").string(), "yeni"));
  EXPECT_TRUE(fs::is_symlink(dizin / "bag"));
  EXPECT_EQ(dosyaOku(dizin / "gercek"), "yeni");
  EXPECT_EQ(girdiSayisi(dizin), 2u);
}

TEST(AtomikYaz, SarkanBagHedefiniYaratir) {
  const auto dizin = bosDizin("atomik_sarkan_");
  fs::create_symlink("yok", dizin / "bag");
  ASSERT_TRUE(atomikYaz((dizin / "bag").string(), "x"));
  EXPECT_TRUE(fs::is_symlink(dizin / "bag"));
  EXPECT_EQ(dosyaOku(dizin / "yok"), "x");
}

TEST(AtomikYaz, VarOlanDosyaIzinleriniKorur) {
  const auto dizin = bosDizin("atomik_kip_");
  std::ofstream(dizin / "gizli") << "eski";
  ::chmod((dizin / "gizli").c_str(), 0600);
  ASSERT_TRUE(atomikYaz((dizin / "gizli").string(), "yeni"));
  struct stat bilgi {};
  ASSERT_EQ(::stat((dizin / "gizli").c_str(), &bilgi), 0);
  EXPECT_EQ(bilgi.st_mode & 07777, 0600u);
  EXPECT_EQ(dosyaOku(dizin / "gizli"), "yeni");
}

TEST(AtomikYaz, OluSurecinGeciciDosyasiSilinirYasayaninKalir) {
  const auto dizin = bosDizin("atomik_yarim_");
  const auto dosya = dizin / "tercihler.ini";
  const pid_t olu = ::fork();
  if (olu == 0) ::_exit(0);
  ::waitpid(olu, nullptr, 0);
  const std::string uuid = "0F8FAD5B-D9CB-469F-A165-70867728950E";
  const auto oluGecici = dizin / (".tercihler.ini." + std::to_string(olu) + "." + uuid);
  const auto canliGecici = dizin / (".tercihler.ini." + std::to_string(::getpid()) + "." + uuid);
  const auto baska = dizin / ".tercihler.ini.yedek";
  for (const auto& yol : {oluGecici, canliGecici, baska}) std::ofstream(yol) << "yarim";
  std::ofstream(dosya) << "[Nevo]\n";
  yarimKalanlariTemizle(dosya.string());
  EXPECT_FALSE(fs::exists(oluGecici));
  EXPECT_TRUE(fs::exists(canliGecici));
  EXPECT_TRUE(fs::exists(baska));
  EXPECT_EQ(dosyaOku(dosya), "[Nevo]\n");
}

}  // namespace
}  // namespace nevo
