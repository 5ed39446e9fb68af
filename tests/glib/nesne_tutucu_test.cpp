// The GLib holders: each holds exactly the reference it is given or takes, and drops it.
#include <gtest/gtest.h>

#include <utility>

#include "temel/glib_gtk.hpp"

namespace nevo {
namespace {

guint referanslar(gpointer nesne) { return static_cast<GObject*>(nesne)->ref_count; }

// Counts how many times the object is finalised.
void olumleriSay(gpointer nesne, int& sayac) {
  g_object_weak_ref(
      static_cast<GObject*>(nesne), [](gpointer veri, GObject*) { ++*static_cast<int*>(veri); },
      &sayac);
}

TEST(NesneTutucu, SahiplenmekReferansSayisiniDegistirmez) {
  int olumler = 0;
  auto* ham = static_cast<GObject*>(g_object_new(G_TYPE_OBJECT, nullptr));
  olumleriSay(ham, olumler);
  GNesne<GObject> nesne = sahiplen(ham);
  EXPECT_EQ(nesne.get(), ham);
  EXPECT_EQ(referanslar(ham), 1u);
  nesne.reset();
  EXPECT_EQ(olumler, 1);
}

TEST(NesneTutucu, PaylasmakBirReferansEkler) {
  int olumler = 0;
  auto* ham = static_cast<GObject*>(g_object_new(G_TYPE_OBJECT, nullptr));
  olumleriSay(ham, olumler);
  {
    GNesne<GObject> nesne = paylas(ham);
    EXPECT_EQ(referanslar(ham), 2u);
  }
  EXPECT_EQ(referanslar(ham), 1u);
  EXPECT_EQ(olumler, 0);
  g_object_unref(ham);
  EXPECT_EQ(olumler, 1);
}

TEST(NesneTutucu, YuzenReferansBatirilirSizmaz) {
  int olumler = 0;
  auto* ham = static_cast<GObject*>(g_object_new(G_TYPE_INITIALLY_UNOWNED, nullptr));
  ASSERT_TRUE(g_object_is_floating(ham));
  olumleriSay(ham, olumler);
  GNesne<GObject> nesne = paylas(ham);
  EXPECT_FALSE(g_object_is_floating(ham));
  EXPECT_EQ(referanslar(ham), 1u);
  nesne.reset();
  EXPECT_EQ(olumler, 1);
}

TEST(NesneTutucu, TasimakReferansSayisiniDegistirmez) {
  int olumler = 0;
  GNesne<GObject> ilk = sahiplen(static_cast<GObject*>(g_object_new(G_TYPE_OBJECT, nullptr)));
  GObject* ham = ilk.get();
  olumleriSay(ham, olumler);
  GNesne<GObject> ikinci = std::move(ilk);
  EXPECT_EQ(ilk.get(), nullptr);
  EXPECT_EQ(referanslar(ham), 1u);
  ilk.reset();
  EXPECT_EQ(olumler, 0);
  ikinci.reset();
  EXPECT_EQ(olumler, 1);
}

TEST(NesneTutucu, BosNesneBosTutucuVerir) {
  GNesne<GObject> paylasilan = paylas<GObject>(nullptr);
  GNesne<GObject> sahiplenilen = sahiplen<GObject>(nullptr);
  EXPECT_EQ(paylasilan.get(), nullptr);
  EXPECT_EQ(sahiplenilen.get(), nullptr);
}

// The memory holders free what they hold; the leak checker of the sanitizer build
// reports anything left behind.
TEST(BellekTutucu, MetinSerbestBirakilir) {
  GMetin metin(g_strdup_printf("%s-%d", "çalışma", 7));
  EXPECT_STREQ(metin.get(), "çalışma-7");
}

TEST(BellekTutucu, AnahtarDosyasiSerbestBirakilir) {
  AnahtarDosyasi dosya(g_key_file_new());
  g_key_file_set_string(dosya.get(), "Grup", "anahtar", "değer");
  GMetin okunan(g_key_file_get_string(dosya.get(), "Grup", "anahtar", nullptr));
  EXPECT_STREQ(okunan.get(), "değer");
}

TEST(BellekTutucu, DegiskenSerbestBirakilir) {
  Degisken deger(g_variant_ref_sink(g_variant_new("(si)", "yedi", 7)));
  const gchar* ad = nullptr;
  gint sayi = 0;
  g_variant_get(deger.get(), "(&si)", &ad, &sayi);
  EXPECT_STREQ(ad, "yedi");
  EXPECT_EQ(sayi, 7);
}

TEST(MetinDizisi, MetinlereIsaretEderVeBoslaBiter) {
  const std::vector<std::string> metinler{"tr_TR", "en_US"};
  const auto dizi = metinDizisi(metinler);
  ASSERT_EQ(dizi.size(), 3u);
  EXPECT_EQ(dizi[0], metinler[0].c_str());
  EXPECT_EQ(dizi[1], metinler[1].c_str());
  EXPECT_EQ(dizi[2], nullptr);
  EXPECT_EQ(metinDizisi({}), (std::vector<const char*>{nullptr}));
}

}  // namespace
}  // namespace nevo
