// Signal connections: the callable runs on emission, lives exactly as long as its
// connection, and a scoped connection ends with its holder.
#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <utility>

#include "temel/glib_gtk.hpp"

namespace nevo {
namespace {

// A plain object with one signal, "dokun": takes an int and returns an int.
void sinifKur(gpointer sinif, gpointer) {
  g_signal_new("dokun", G_TYPE_FROM_CLASS(sinif), G_SIGNAL_RUN_LAST, 0, nullptr, nullptr, nullptr,
               G_TYPE_INT, 1, G_TYPE_INT);
}

GType denemeTuru() {
  static const GType tur =
      g_type_register_static_simple(G_TYPE_OBJECT, "NevoDenemeNesnesi", sizeof(GObjectClass),
                                    &sinifKur, sizeof(GObject), nullptr, GTypeFlags{});
  return tur;
}

using Dokun = Sinyal<gint(GObject*, gint)>;

GNesne<GObject> yeniNesne() {
  return sahiplen(static_cast<GObject*>(g_object_new(denemeTuru(), nullptr)));
}

gint dokun(GObject* nesne, gint sayi) {
  gint sonuc = 0;
  g_signal_emit_by_name(nesne, "dokun", sayi, &sonuc);
  return sonuc;
}

guint referanslar(gpointer nesne) { return static_cast<GObject*>(nesne)->ref_count; }

// A token the callables carry: its use count tells how many copies are alive.
using Iz = std::shared_ptr<int>;

TEST(Sinyal, CagrilabilirYayindaArgumanlarlaCalisir) {
  auto nesne = yeniNesne();
  GObject* gelenNesne = nullptr;
  gint gelenSayi = 0;
  const gulong kimlik = Dokun::bagla(nesne.get(), "dokun", [&](GObject* kaynak, gint sayi) {
    gelenNesne = kaynak;
    gelenSayi = sayi;
    return sayi * 2;
  });
  EXPECT_NE(kimlik, 0u);
  EXPECT_EQ(dokun(nesne.get(), 21), 42);
  EXPECT_EQ(gelenNesne, nesne.get());
  EXPECT_EQ(gelenSayi, 21);
}

TEST(Sinyal, NesneOlunceCagrilabilirSerbestKalir) {
  auto nesne = yeniNesne();
  auto iz = std::make_shared<int>(0);
  Dokun::bagla(nesne.get(), "dokun", [iz](GObject*, gint) { return ++*iz; });
  EXPECT_EQ(iz.use_count(), 2);
  EXPECT_EQ(dokun(nesne.get(), 0), 1);
  nesne.reset();
  EXPECT_EQ(iz.use_count(), 1);
}

TEST(Sinyal, BaglantiKesilinceCagrilabilirSerbestKalir) {
  auto nesne = yeniNesne();
  auto iz = std::make_shared<int>(0);
  const gulong kimlik = Dokun::bagla(nesne.get(), "dokun", [iz](GObject*, gint) { return 1; });
  g_signal_handler_disconnect(nesne.get(), kimlik);
  EXPECT_EQ(iz.use_count(), 1);
}

TEST(Sinyal, BilinmeyenSinyaleBaglanmazCagrilabiliriBirakir) {
  auto nesne = yeniNesne();
  auto iz = std::make_shared<int>(0);
  // GLib reports the unknown name; here that report is expected, counted and not fatal.
  int raporlar = 0;
  const GLogLevelFlags onceki = g_log_set_always_fatal(G_LOG_LEVEL_ERROR);
  const guint dinleyici = g_log_set_handler(
      "GLib-GObject", static_cast<GLogLevelFlags>(G_LOG_LEVEL_WARNING | G_LOG_LEVEL_CRITICAL),
      [](const gchar*, GLogLevelFlags, const gchar*, gpointer veri) { ++*static_cast<int*>(veri); },
      &raporlar);
  const gulong kimlik = Dokun::bagla(nesne.get(), "yok-boyle", [iz](GObject*, gint) { return 1; });
  g_log_remove_handler("GLib-GObject", dinleyici);
  g_log_set_always_fatal(onceki);
  EXPECT_EQ(raporlar, 1);
  EXPECT_EQ(kimlik, 0u);
  EXPECT_EQ(iz.use_count(), 1);
}

TEST(SinyalBaglantisi, KapsamBitinceBaglantiKesilir) {
  auto nesne = yeniNesne();
  auto iz = std::make_shared<int>(0);
  int cagrilar = 0;
  {
    SinyalBaglantisi baglanti = Dokun::bagliTut(
        nesne.get(), "dokun", [iz, &cagrilar](GObject*, gint) { return ++cagrilar; });
    EXPECT_TRUE(baglanti.bagli());
    EXPECT_EQ(dokun(nesne.get(), 0), 1);
  }
  EXPECT_EQ(iz.use_count(), 1);
  dokun(nesne.get(), 0);
  EXPECT_EQ(cagrilar, 1);
}

TEST(SinyalBaglantisi, NesneyiYasatmaz) {
  auto nesne = yeniNesne();
  SinyalBaglantisi baglanti =
      Dokun::bagliTut(nesne.get(), "dokun", [](GObject*, gint) { return 0; });
  EXPECT_EQ(referanslar(nesne.get()), 1u);
}

TEST(SinyalBaglantisi, NesneOnceOlurseGuvenle) {
  auto nesne = yeniNesne();
  auto iz = std::make_shared<int>(0);
  SinyalBaglantisi baglanti =
      Dokun::bagliTut(nesne.get(), "dokun", [iz](GObject*, gint) { return 0; });
  nesne.reset();
  EXPECT_EQ(iz.use_count(), 1);
  EXPECT_FALSE(baglanti.bagli());
  baglanti.kes();
  baglanti.kes();
}  // the holder goes after its object: no GLib warning (warnings are fatal in this run)

TEST(SinyalBaglantisi, ElleKesilmisBaglantiGuvenle) {
  auto nesne = yeniNesne();
  SinyalBaglantisi baglanti =
      Dokun::bagliTut(nesne.get(), "dokun", [](GObject*, gint) { return 0; });
  g_signal_handler_disconnect(nesne.get(), baglanti.kimlik());
  EXPECT_FALSE(baglanti.bagli());
}

TEST(SinyalBaglantisi, KesHemenKeser) {
  auto nesne = yeniNesne();
  auto iz = std::make_shared<int>(0);
  int cagrilar = 0;
  SinyalBaglantisi baglanti =
      Dokun::bagliTut(nesne.get(), "dokun", [iz, &cagrilar](GObject*, gint) { return ++cagrilar; });
  baglanti.kes();
  EXPECT_FALSE(baglanti.bagli());
  EXPECT_EQ(baglanti.kimlik(), 0u);
  EXPECT_EQ(iz.use_count(), 1);
  dokun(nesne.get(), 0);
  EXPECT_EQ(cagrilar, 0);
}

TEST(SinyalBaglantisi, TasinincaBaglantiYeniTutucuyaGecer) {
  auto nesne = yeniNesne();
  int birinci = 0;
  int ikinci = 0;
  SinyalBaglantisi a =
      Dokun::bagliTut(nesne.get(), "dokun", [&](GObject*, gint) { return ++birinci; });
  SinyalBaglantisi b = std::move(a);
  EXPECT_FALSE(a.bagli());
  EXPECT_TRUE(b.bagli());
  { SinyalBaglantisi bos = std::move(a); }  // an empty holder disconnects nothing
  dokun(nesne.get(), 0);
  EXPECT_EQ(birinci, 1);

  // Assigning over a live connection ends that connection.
  b = Dokun::bagliTut(nesne.get(), "dokun", [&](GObject*, gint) { return ++ikinci; });
  dokun(nesne.get(), 0);
  EXPECT_EQ(birinci, 1);
  EXPECT_EQ(ikinci, 1);
  b = SinyalBaglantisi();
  dokun(nesne.get(), 0);
  EXPECT_EQ(ikinci, 1);
}

TEST(SinyalBaglantisi, CagrilabilirKendiBaglantisiniKesebilir) {
  auto nesne = yeniNesne();
  auto iz = std::make_shared<int>(0);
  int cagrilar = 0;
  std::optional<SinyalBaglantisi> baglanti;
  baglanti = Dokun::bagliTut(nesne.get(), "dokun", [iz, &cagrilar, &baglanti](GObject*, gint) {
    ++cagrilar;
    baglanti.reset();  // the callable itself stays alive until the emission ends
    return *iz;
  });
  dokun(nesne.get(), 0);
  dokun(nesne.get(), 0);
  EXPECT_EQ(cagrilar, 1);
  EXPECT_EQ(iz.use_count(), 1);
}

TEST(SinyalBaglantisi, BagliOlmayanKimlikBosTutucuVerir) {
  SinyalBaglantisi bos(nullptr, 7);
  EXPECT_FALSE(bos.bagli());
  EXPECT_EQ(bos.kimlik(), 0u);
}

}  // namespace
}  // namespace nevo
