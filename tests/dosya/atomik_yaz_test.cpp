// Atomic writes over links, modes and interrupted writes.
#include "temel/atomik_yaz.hpp"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <sstream>

namespace nevo {
namespace {

namespace fs = std::filesystem;

std::string oku(const fs::path& yol) {
  std::ifstream f(yol, std::ios::binary);
  std::stringstream s;
  s << f.rdbuf();
  return s.str();
}

fs::path geciciDizin(const char* ad) {
  const auto dizin = fs::path(::testing::TempDir()) / (ad + std::to_string(::getpid()));
  fs::remove_all(dizin);
  fs::create_directories(dizin);
  return dizin;
}

std::size_t girdiSayisi(const fs::path& dizin) {
  return static_cast<std::size_t>(
      std::distance(fs::directory_iterator(dizin), fs::directory_iterator()));
}

TEST(AtomikYaz, YetkisizKullaniciIleCalisir) { EXPECT_NE(::geteuid(), 0u); }

TEST(AtomikYaz, BagliDosyaninHedefiYenilenirBagKalir) {
  const auto dizin = geciciDizin("atomik_bag_");
  std::ofstream(dizin / "gercek") << "eski";
  fs::create_symlink("gercek", dizin / "bag");
  ASSERT_TRUE(atomikYaz((dizin / "bag").string(), "yeni"));
  EXPECT_TRUE(fs::is_symlink(dizin / "bag"));
  EXPECT_EQ(oku(dizin / "gercek"), "yeni");
  EXPECT_EQ(girdiSayisi(dizin), 2u);
}

TEST(AtomikYaz, SarkanBagHedefiniYaratir) {
  const auto dizin = geciciDizin("atomik_sarkan_");
  fs::create_symlink("yok", dizin / "bag");
  ASSERT_TRUE(atomikYaz((dizin / "bag").string(), "x"));
  EXPECT_TRUE(fs::is_symlink(dizin / "bag"));
  EXPECT_EQ(oku(dizin / "yok"), "x");
}

TEST(AtomikYaz, VarOlanDosyaIzinleriniKorur) {
  const auto dizin = geciciDizin("atomik_kip_");
  std::ofstream(dizin / "gizli") << "eski";
  ::chmod((dizin / "gizli").c_str(), 0600);
  ASSERT_TRUE(atomikYaz((dizin / "gizli").string(), "yeni"));
  struct stat bilgi {};
  ASSERT_EQ(::stat((dizin / "gizli").c_str(), &bilgi), 0);
  EXPECT_EQ(bilgi.st_mode & 07777, 0600u);
  EXPECT_EQ(oku(dizin / "gizli"), "yeni");
}

TEST(AtomikYaz, OluSurecinGeciciDosyasiSilinirYasayaninKalir) {
  const auto dizin = geciciDizin("atomik_yarim_");
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
  EXPECT_EQ(oku(dosya), "[Nevo]\n");
}

}  // namespace
}  // namespace nevo
