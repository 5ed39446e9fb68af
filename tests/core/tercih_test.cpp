// Preferences.
#include <gtest/gtest.h>

#include <limits>

#include "fakes/sahte_masaustu.hpp"

namespace nevo {
namespace {

struct TercihTesti : ::testing::Test {
  sahte::TercihDeposuSahte depo;
  Tercih tercih{depo};
};

TEST_F(TercihTesti, TamsayiOlmayanKisayolKoduEksiBirOkunur) {
  depo.degerler[Tercih::KISAYOL_KOD] = std::string("49");
  EXPECT_EQ(tercih.kisayolKod(), -1);
  depo.degerler[Tercih::KISAYOL_KOD] = true;
  EXPECT_EQ(tercih.kisayolKod(), -1);
  depo.degerler[Tercih::KISAYOL_KOD] = std::int64_t{0};
  EXPECT_EQ(tercih.kisayolKod(), 0);
}

TEST_F(TercihTesti, EksikModSifirEksikAdBosMetin) {
  EXPECT_EQ(tercih.kisayolMod(), 0);
  EXPECT_EQ(tercih.kisayolAd(), "");
}

// The mask is read as the user defaults read any integer; only the key code is strict.
TEST_F(TercihTesti, KisayolMaskesiDuzTamsayiOlarakOkunur) {
  depo.degerler[Tercih::KISAYOL_MOD] = std::string("4096");
  EXPECT_EQ(tercih.kisayolMod(), 4096);
  depo.degerler[Tercih::KISAYOL_MOD] = 4096.0;
  EXPECT_EQ(tercih.kisayolMod(), 4096);
  depo.degerler[Tercih::KISAYOL_MOD] = std::string("6144.0");
  EXPECT_EQ(tercih.kisayolMod(), 6144);
  depo.degerler[Tercih::KISAYOL_MOD] = std::string("Ctrl");
  EXPECT_EQ(tercih.kisayolMod(), 0);
  depo.degerler[Tercih::KISAYOL_MOD] = std::int64_t{2560};
  EXPECT_EQ(tercih.kisayolMod(), 2560);
  depo.degerler[Tercih::KISAYOL_KOD] = std::string("49");
  depo.degerler[Tercih::KISAYOL_MOD] = std::string("4096");
  const auto hepsi = tercih.hepsi();
  EXPECT_EQ(hepsi.kisayolKod, -1);
  EXPECT_EQ(hepsi.kisayolMod, 4096);
}

TEST_F(TercihTesti, IlkKurulumdaIkiMantiksalDaYanlis) {
  EXPECT_FALSE(tercih.menuCubugu());
  EXPECT_FALSE(tercih.uyanikTut());
  EXPECT_EQ(tercih.kisayolKod(), -1);
  EXPECT_TRUE(depo.degerler.empty());  // nothing is registered by reading
}

TEST_F(TercihTesti, YazilanlarAyniAnahtarlaraGider) {
  tercih.kisayolKod(49);
  tercih.kisayolMod(4096);
  tercih.kisayolAd("Ctrl+Space");
  tercih.menuCubugu(true);
  tercih.uyanikTut(true);
  EXPECT_EQ(std::get<std::int64_t>(depo.degerler.at("nevo.kisayol.kod")), 49);
  EXPECT_EQ(std::get<std::int64_t>(depo.degerler.at("nevo.kisayol.mod")), 4096);
  EXPECT_EQ(std::get<std::string>(depo.degerler.at("nevo.kisayol.ad")), "Ctrl+Space");
  EXPECT_TRUE(std::get<bool>(depo.degerler.at("nevo.menuCubugu")));
  EXPECT_TRUE(std::get<bool>(depo.degerler.at("nevo.uyanikTut")));
  depo.degerler["nevo.uyanikTut"] = false;  // every read asks the store
  EXPECT_FALSE(tercih.uyanikTut());
}

TEST(Tercih, MetindenTamsayiYalnizTamSayiyiKabulEder) {
  EXPECT_EQ(tamsayiOku("49"), 49);
  EXPECT_EQ(tamsayiOku("-1"), -1);
  EXPECT_EQ(tamsayiOku("4294967295"), 4294967295LL);
  for (const char* kotu :
       {"", "abc", "4.0", "49 ", " 49", "+49", "0x31", "1e3", "99999999999999999999", "--1", "-"}) {
    EXPECT_EQ(tamsayiOku(kotu), std::nullopt) << kotu;
  }
}

TEST(Tercih, MetindenDuzTamsayiBasindakiSayidir) {
  EXPECT_EQ(duzTamsayiOku("4096"), 4096);
  EXPECT_EQ(duzTamsayiOku("  4096.0"), 4096);
  EXPECT_EQ(duzTamsayiOku("-12abc"), -12);
  EXPECT_EQ(duzTamsayiOku("+7"), 7);
  EXPECT_EQ(duzTamsayiOku("abc"), 0);
  EXPECT_EQ(duzTamsayiOku(""), 0);
  EXPECT_EQ(duzTamsayiOku("-"), 0);
  EXPECT_EQ(duzTamsayiOku("99999999999999999999"), std::numeric_limits<std::int64_t>::max());
  EXPECT_EQ(duzTamsayiOku("-99999999999999999999"), std::numeric_limits<std::int64_t>::min());
}

TEST(Tercih, MetindenMantiksal) {
  EXPECT_EQ(mantiksalOku("true"), true);
  EXPECT_EQ(mantiksalOku("false"), false);
  EXPECT_EQ(mantiksalOku("evet"), std::nullopt);
  EXPECT_EQ(mantiksalOku(""), std::nullopt);
}

}  // namespace
}  // namespace nevo
