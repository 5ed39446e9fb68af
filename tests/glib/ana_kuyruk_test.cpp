// The main queue on the GLib main loop: when posted and timed work runs, in which order,
// and what happens to work still waiting when the queue goes.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <thread>
#include <vector>

#include "dongu.hpp"
#include "temel/ana_kuyruk_gtk.hpp"

namespace nevo {
namespace {

using test::bekle;
using test::birTur;
using test::Dongu;
using test::sureBoyuncaDondur;

TEST(AnaKuyrukGtk, GonderilenIsSonrakiTurdaCalisir) {
  AnaKuyrukGtk kuyruk;
  bool calisti = false;
  kuyruk.gonder([&] { calisti = true; });
  EXPECT_FALSE(calisti);
  EXPECT_TRUE(bekle([&] { return calisti; }));
}

TEST(AnaKuyrukGtk, IslerGonderimSirasiylaCalisir) {
  AnaKuyrukGtk kuyruk;
  std::vector<int> sira;
  for (int i = 0; i < 5; ++i) kuyruk.gonder([&sira, i] { sira.push_back(i); });
  ASSERT_TRUE(bekle([&] { return sira.size() == 5; }));
  EXPECT_EQ(sira, (std::vector<int>{0, 1, 2, 3, 4}));
}

TEST(AnaKuyrukGtk, BaskaIsParcacigindanGonderilenIsAnaIsParcacigindaSirayla) {
  AnaKuyrukGtk kuyruk;
  const auto ana = std::this_thread::get_id();
  std::vector<int> sira;
  bool hepsiAnada = true;
  std::thread arka([&] {
    for (int i = 0; i < 100; ++i) {
      kuyruk.gonder([&, i] {
        hepsiAnada = hepsiAnada && std::this_thread::get_id() == ana;
        sira.push_back(i);
      });
    }
  });
  ASSERT_TRUE(bekle([&] { return sira.size() == 100; }));
  arka.join();
  EXPECT_TRUE(hepsiAnada);
  for (int i = 0; i < 100; ++i) EXPECT_EQ(sira[i], i);
}

TEST(AnaKuyrukGtk, CalisirkenGonderilenIsSonrakiTurdaCalisir) {
  AnaKuyrukGtk kuyruk;
  std::vector<std::string> sira;
  kuyruk.gonder([&] {
    sira.push_back("a");
    kuyruk.gonder([&] { sira.push_back("c"); });
  });
  kuyruk.gonder([&] { sira.push_back("b"); });

  birTur();  // the waiting work runs in one turn; what it posts does not
  EXPECT_EQ(sira, (std::vector<std::string>{"a", "b"}));
  ASSERT_TRUE(bekle([&] { return sira.size() == 3; }));
  EXPECT_EQ(sira.back(), "c");
}

TEST(AnaKuyrukGtk, SonraSuresiGecinceDongudeCalisir) {
  AnaKuyrukGtk kuyruk;
  Dongu dongu;
  std::vector<std::string> sira;
  const gint64 baslangic = g_get_monotonic_time();
  gint64 gecen = 0;
  kuyruk.sonra(0.05, [&] {
    gecen = g_get_monotonic_time() - baslangic;
    sira.push_back("sonra");
    dongu.bitir();
  });
  kuyruk.gonder([&] { sira.push_back("hemen"); });
  EXPECT_TRUE(sira.empty());
  ASSERT_TRUE(dongu.calistir());
  EXPECT_EQ(sira, (std::vector<std::string>{"hemen", "sonra"}));
  EXPECT_GE(gecen, 50'000);  // never early; how late is not the queue's promise
}

TEST(AnaKuyrukGtk, KisaGecikmeliIsOnceCalisir) {
  AnaKuyrukGtk kuyruk;
  Dongu dongu;
  std::vector<std::string> sira;
  kuyruk.sonra(0.2, [&] {
    sira.push_back("uzun");
    dongu.bitir();
  });
  kuyruk.sonra(0.02, [&] { sira.push_back("kisa"); });
  ASSERT_TRUE(dongu.calistir());
  EXPECT_EQ(sira, (std::vector<std::string>{"kisa", "uzun"}));
}

TEST(AnaKuyrukGtk, GecikmesizSonraDaSonrakiTurdaCalisir) {
  AnaKuyrukGtk kuyruk;
  int calisan = 0;
  kuyruk.sonra(0, [&] { ++calisan; });
  kuyruk.sonra(-1, [&] { ++calisan; });
  EXPECT_EQ(calisan, 0);
  EXPECT_TRUE(bekle([&] { return calisan == 2; }));
}

TEST(AnaKuyrukGtk, YikilanKuyrukBekleyenIsleriCalistirmazBirakir) {
  auto iz = std::make_shared<int>(0);
  std::weak_ptr<int> zayif = iz;
  bool calisti = false;
  {
    AnaKuyrukGtk kuyruk;
    kuyruk.gonder([iz, &calisti] { calisti = true; });
    kuyruk.sonra(0.01, [iz, &calisti] { calisti = true; });
    iz.reset();
  }
  EXPECT_TRUE(zayif.expired());
  sureBoyuncaDondur(0.1);
  EXPECT_FALSE(calisti);
}

TEST(AnaKuyrukGtk, IsKendiKuyrugunuYikabilir) {
  auto kuyruk = std::make_unique<AnaKuyrukGtk>();
  auto iz = std::make_shared<int>(0);
  std::weak_ptr<int> zayif = iz;
  bool sonrakiCalisti = false;
  kuyruk->gonder([&] { kuyruk.reset(); });
  kuyruk->gonder([iz, &sonrakiCalisti] { sonrakiCalisti = true; });
  kuyruk->sonra(0.01, [iz, &sonrakiCalisti] { sonrakiCalisti = true; });
  iz.reset();
  ASSERT_TRUE(bekle([&] { return kuyruk == nullptr; }));
  EXPECT_TRUE(zayif.expired());
  sureBoyuncaDondur(0.1);
  EXPECT_FALSE(sonrakiCalisti);
}

TEST(AnaKuyrukGtk, ZamanliIsKendiKuyrugunuYikabilir) {
  auto kuyruk = std::make_unique<AnaKuyrukGtk>();
  auto iz = std::make_shared<int>(0);
  std::weak_ptr<int> zayif = iz;
  bool digeriCalisti = false;
  kuyruk->sonra(0.01, [&] { kuyruk.reset(); });
  kuyruk->sonra(0.05, [iz, &digeriCalisti] { digeriCalisti = true; });
  iz.reset();
  ASSERT_TRUE(bekle([&] { return kuyruk == nullptr; }));
  EXPECT_TRUE(zayif.expired());
  sureBoyuncaDondur(0.1);
  EXPECT_FALSE(digeriCalisti);
}

}  // namespace
}  // namespace nevo
