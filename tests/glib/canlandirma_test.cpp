// The timed change: its step sees the elapsed share rise to exactly 1 once, on the main
// loop; starting again replaces a running change; destroying it stops it.
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <vector>

#include "dongu.hpp"
#include "temel/canlandirma_gtk.hpp"

namespace nevo {
namespace {

using test::bekle;
using test::sureBoyuncaDondur;

// Several frames: long enough to show that nothing runs after the end.
constexpr double BIRKAC_KARE = 0.1;

bool bitti(const std::vector<double>& oranlar) { return !oranlar.empty() && oranlar.back() >= 1.0; }

// The shares of one run: within [0, 1], never falling, 1 only at the end.
void gecerliAkis(const std::vector<double>& oranlar) {
  ASSERT_FALSE(oranlar.empty());
  EXPECT_TRUE(std::is_sorted(oranlar.begin(), oranlar.end()));
  EXPECT_GE(oranlar.front(), 0.0);
  EXPECT_EQ(oranlar.back(), 1.0);
  EXPECT_EQ(std::count(oranlar.begin(), oranlar.end(), 1.0), 1);
}

TEST(Canlandirma, AdimlarBireKadarYukselirSonBirKezGelir) {
  Canlandirma canlandirma;
  std::vector<double> oranlar;
  canlandirma.baslat(0.1, [&](double oran) { oranlar.push_back(oran); });
  EXPECT_TRUE(oranlar.empty());  // the first step comes on the loop, not inside baslat
  ASSERT_TRUE(bekle([&] { return bitti(oranlar); }));
  gecerliAkis(oranlar);
  const auto adimlar = oranlar.size();
  sureBoyuncaDondur(BIRKAC_KARE);
  EXPECT_EQ(oranlar.size(), adimlar);
}

// The first step is on the loop before anything the loop was given after the start.
TEST(Canlandirma, IlkAdimDongununIlkTurundaGelir) {
  Canlandirma canlandirma;
  std::vector<double> oranlar;
  canlandirma.baslat(60, [&](double oran) { oranlar.push_back(oran); });
  bool sonraki = false;
  g_idle_add_once([](gpointer veri) { *static_cast<bool*>(veri) = true; }, &sonraki);
  ASSERT_TRUE(bekle([&] { return sonraki; }));
  ASSERT_FALSE(oranlar.empty());
  EXPECT_GT(oranlar.front(), 0.0);
}

TEST(Canlandirma, SuresizDegisimTekAdimdaBiter) {
  Canlandirma canlandirma;
  std::vector<double> oranlar;
  canlandirma.baslat(0, [&](double oran) { oranlar.push_back(oran); });
  ASSERT_TRUE(bekle([&] { return bitti(oranlar); }));
  sureBoyuncaDondur(BIRKAC_KARE);
  EXPECT_EQ(oranlar, std::vector<double>{1.0});
}

TEST(Canlandirma, YenidenBaslatmakSurenDegisiminYerineGecer) {
  Canlandirma canlandirma;
  std::vector<double> ilk;
  std::vector<double> ikinci;
  canlandirma.baslat(60, [&](double oran) { ilk.push_back(oran); });
  ASSERT_TRUE(bekle([&] { return ilk.size() >= 2; }));
  const auto ilkAdimlar = ilk.size();
  canlandirma.baslat(0.05, [&](double oran) { ikinci.push_back(oran); });
  ASSERT_TRUE(bekle([&] { return bitti(ikinci); }));
  sureBoyuncaDondur(BIRKAC_KARE);
  EXPECT_EQ(ilk.size(), ilkAdimlar);
  EXPECT_FALSE(bitti(ilk));
  gecerliAkis(ikinci);
}

TEST(Canlandirma, AdimIcindenYenidenBaslatilabilir) {
  Canlandirma canlandirma;
  std::vector<double> ilk;
  std::vector<double> ikinci;
  canlandirma.baslat(60, [&](double oran) {
    ilk.push_back(oran);
    if (ilk.size() == 2) canlandirma.baslat(0.05, [&](double o) { ikinci.push_back(o); });
  });
  ASSERT_TRUE(bekle([&] { return bitti(ikinci); }));
  sureBoyuncaDondur(BIRKAC_KARE);
  EXPECT_EQ(ilk.size(), 2u);
  gecerliAkis(ikinci);
}

TEST(Canlandirma, SonAdimBirSonrakiniBaslatabilir) {
  Canlandirma canlandirma;
  std::vector<double> ilk;
  std::vector<double> ikinci;
  canlandirma.baslat(0.05, [&](double oran) {
    ilk.push_back(oran);
    if (oran >= 1.0) canlandirma.baslat(0.05, [&](double o) { ikinci.push_back(o); });
  });
  ASSERT_TRUE(bekle([&] { return bitti(ikinci); }));
  sureBoyuncaDondur(BIRKAC_KARE);
  gecerliAkis(ilk);
  gecerliAkis(ikinci);
}

TEST(Canlandirma, BittiktenSonraYenidenBaslatilabilir) {
  Canlandirma canlandirma;
  std::vector<double> ilk;
  std::vector<double> ikinci;
  canlandirma.baslat(0.02, [&](double oran) { ilk.push_back(oran); });
  ASSERT_TRUE(bekle([&] { return bitti(ilk); }));
  canlandirma.baslat(0.02, [&](double oran) { ikinci.push_back(oran); });
  ASSERT_TRUE(bekle([&] { return bitti(ikinci); }));
  sureBoyuncaDondur(BIRKAC_KARE);
  gecerliAkis(ilk);
  gecerliAkis(ikinci);
}

TEST(Canlandirma, YikilincaDurur) {
  auto canlandirma = std::make_unique<Canlandirma>();
  std::vector<double> oranlar;
  canlandirma->baslat(60, [&](double oran) { oranlar.push_back(oran); });
  ASSERT_TRUE(bekle([&] { return !oranlar.empty(); }));
  canlandirma.reset();
  const auto adimlar = oranlar.size();
  sureBoyuncaDondur(BIRKAC_KARE);
  EXPECT_EQ(oranlar.size(), adimlar);
}

TEST(Canlandirma, AdimKendiniYikabilir) {
  auto canlandirma = std::make_unique<Canlandirma>();
  auto iz = std::make_shared<int>(0);
  std::weak_ptr<int> zayif = iz;
  int adimlar = 0;
  canlandirma->baslat(60, [&, iz](double) {
    if (++adimlar == 2) canlandirma.reset();
  });
  iz.reset();
  ASSERT_TRUE(bekle([&] { return canlandirma == nullptr; }));
  EXPECT_TRUE(zayif.expired());
  sureBoyuncaDondur(BIRKAC_KARE);
  EXPECT_EQ(adimlar, 2);
}

}  // namespace
}  // namespace nevo
