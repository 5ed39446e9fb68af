// GNOME's key bindings in memory (on a display, for the keyboard map): the system's shortcuts read
// from its schemas for the shortcut check, and the custom binding that runs `nevo` while the hot
// key is registered.
#include <gio/gio.h>
#include <gtest/gtest.h>
#include <gtk/gtk.h>

#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <vector>

#include "desktop/kisayol/gnome_kisayolu_gtk.hpp"
#include "desktop/kisayol/kisayol_denetimi.hpp"
#include "temel/glib_gtk.hpp"

namespace nevo {
namespace {

constexpr const char* WM = "org.gnome.desktop.wm.keybindings";
constexpr const char* MEDYA = "org.gnome.settings-daemon.plugins.media-keys";
constexpr const char* BAGLAMA = "org.gnome.settings-daemon.plugins.media-keys.custom-keybinding";
constexpr auto CTRL_ALT = bayrak::CONTROL | bayrak::OPTION;

// Settings live in memory: nothing on this machine is read or changed.
const bool BELLEKTE = g_setenv("GSETTINGS_BACKEND", "memory", TRUE);
// Accelerators are parsed and named against the display's keyboard map.
const bool EKRAN = gtk_init_check(nullptr, nullptr);

GNesne<GSettings> ayar(const char* sema, const char* yol = nullptr) {
  return sahiplen(yol ? g_settings_new_with_path(sema, yol) : g_settings_new(sema));
}

void listeYaz(GSettings* a, const char* anahtar, std::vector<const char*> degerler) {
  degerler.push_back(nullptr);
  g_settings_set_strv(a, anahtar, degerler.data());
}

std::vector<std::string> liste(GSettings* a, const char* anahtar) {
  std::vector<std::string> sonuc;
  gchar** d = g_settings_get_strv(a, anahtar);
  for (gchar** p = d; *p != nullptr; ++p) sonuc.emplace_back(*p);
  g_strfreev(d);
  return sonuc;
}

// The verdict of a registration, which GNOME's settings give at once.
std::optional<bool> kaydet(GnomeKisayolu& kisayol, std::uint32_t kod, std::uint32_t mod) {
  std::optional<bool> karar;
  kisayol.kaydet(kod, mod, [&](bool kabul) { karar = kabul; });
  return karar;
}

KisayolKarari denetle(std::int64_t kod, std::uint64_t bayraklar) {
  return kisayolDenetle({kod, bayraklar, "x"}, sistemKisayollariOku(), linuxKisayolMetinleri());
}

struct GnomeKisayollari : ::testing::Test {
  void SetUp() override {
    ASSERT_TRUE(BELLEKTE);
    ASSERT_TRUE(EKRAN);
    if (!gnomeKisayollariVar()) GTEST_FAIL() << "GNOME'un kısayol şemaları kurulu değil";
    g_settings_reset(wm.get(), "close");
    g_settings_reset(medya.get(), "custom-keybindings");
  }
  GNesne<GSettings> wm = ayar(WM);
  GNesne<GSettings> medya = ayar(MEDYA);
};

TEST_F(GnomeKisayollari, VarsayilanSistemKisayollariReddedilir) {
  // Alt+Tab switches applications on a fresh GNOME.
  EXPECT_EQ(denetle(48, bayrak::OPTION).mesaj,
            "Bu kısayolu sistem kullanıyor. Başka bir kombinasyon dene.");
  EXPECT_TRUE(denetle(40, CTRL_ALT | bayrak::SHIFT).tamam);
}

TEST_F(GnomeKisayollari, AyarlananBaglamalarBozuklarAtlanarakOkunur) {
  listeYaz(wm.get(), "close", {"<<bozuk", "<Primary><Alt>k", "", "disabled", "<Super>", "<Alt>ş"});
  const auto sistem = sistemKisayollariOku();
  ASSERT_TRUE(sistem);
  int kapat = 0;
  for (const auto& girdi : sistem->items()) {
    if (girdi.key().rfind(std::string(WM) + ".close.", 0) == 0) ++kapat;
  }
  EXPECT_EQ(kapat, 1);  // only the accelerator that parses to a known key
  EXPECT_EQ(denetle(40, CTRL_ALT).mesaj,
            "Bu kısayolu sistem kullanıyor. Başka bir kombinasyon dene.");
  // Caps Lock held is another combination for the comparison of the upper bits.
  EXPECT_TRUE(denetle(40, CTRL_ALT | bayrak::BUYUK_HARF_KILIDI).tamam);
}

TEST_F(GnomeKisayollari, BaglamaYalnizKayitliykenVar) {
  listeYaz(medya.get(), "custom-keybindings", {"/baska/"});
  GnomeKisayolu kisayol("'/opt/nevo/bin/nevo' --kisayol-basildi", nullptr);
  ASSERT_EQ(kaydet(kisayol, 40, 4096 + 2048), true);
  EXPECT_EQ(liste(medya.get(), "custom-keybindings"),
            (std::vector<std::string>{"/baska/", GNOME_KISAYOL_YOLU}));
  auto baglama = ayar(BAGLAMA, GNOME_KISAYOL_YOLU);
  GMetin tus(g_settings_get_string(baglama.get(), "binding"));
  GMetin komut(g_settings_get_string(baglama.get(), "command"));
  GMetin ad(g_settings_get_string(baglama.get(), "name"));
  EXPECT_STREQ(tus.get(), "<Primary><Alt>k");
  EXPECT_STREQ(komut.get(), "'/opt/nevo/bin/nevo' --kisayol-basildi");
  EXPECT_STREQ(ad.get(), "Nevo");

  ASSERT_EQ(kaydet(kisayol, 49, 2048 + 512), true);  // a new one replaces it
  EXPECT_EQ(liste(medya.get(), "custom-keybindings"),
            (std::vector<std::string>{"/baska/", GNOME_KISAYOL_YOLU}));
  GMetin yeni(g_settings_get_string(baglama.get(), "binding"));
  EXPECT_STREQ(yeni.get(), "<Shift><Alt>space");

  kisayol.kaldir();
  EXPECT_EQ(liste(medya.get(), "custom-keybindings"), (std::vector<std::string>{"/baska/"}));
  GMetin bos(g_settings_get_string(baglama.get(), "binding"));
  EXPECT_STREQ(bos.get(), "");
}

TEST_F(GnomeKisayollari, BilinmeyenTusKoduKaydedilmez) {
  GnomeKisayolu kisayol("nevo --kisayol-basildi", nullptr);
  EXPECT_EQ(kaydet(kisayol, 4000, 4096), false);
  EXPECT_TRUE(liste(medya.get(), "custom-keybindings").empty());
}

// GNOME would bind a combination twice without a word: one it already uses is refused.
TEST_F(GnomeKisayollari, GnomeunVeBaskasininBaglamasiReddedilir) {
  listeYaz(wm.get(), "close", {"<Primary><Alt>k"});
  auto baska = ayar(BAGLAMA, "/baska/");
  g_settings_set_string(baska.get(), "binding", "<Alt><Shift>space");
  listeYaz(medya.get(), "custom-keybindings", {"/baska/"});
  GnomeKisayolu kisayol("nevo --kisayol-basildi", nullptr);
  EXPECT_EQ(kaydet(kisayol, 40, 4096 + 2048), false);  // the window manager's close
  EXPECT_EQ(kaydet(kisayol, 49, 2048 + 512), false);   // the other application's binding
  EXPECT_EQ(liste(medya.get(), "custom-keybindings"), (std::vector<std::string>{"/baska/"}));
  EXPECT_EQ(kaydet(kisayol, 49, 4096 + 2048), true);  // a free combination
  // Its own binding, registered again, holds nothing against itself.
  EXPECT_EQ(kaydet(kisayol, 49, 4096 + 2048), true);
  kisayol.kaldir();
  g_settings_reset(baska.get(), "binding");
}

TEST_F(GnomeKisayollari, UygulamaEylemiBasmaSayilir) {
  auto uygulama = sahiplen(g_application_new(nullptr, G_APPLICATION_NON_UNIQUE));
  ASSERT_TRUE(g_application_register(uygulama.get(), nullptr, nullptr));
  int basmalar = 0;
  {
    GnomeKisayolu kisayol("nevo --kisayol-basildi", uygulama.get());
    kisayol.isleyiciKur([&] { ++basmalar; });
    g_action_group_activate_action(G_ACTION_GROUP(uygulama.get()), GNOME_KISAYOL_EYLEMI, nullptr);
    EXPECT_EQ(basmalar, 1);
  }
  EXPECT_FALSE(g_action_group_has_action(G_ACTION_GROUP(uygulama.get()), GNOME_KISAYOL_EYLEMI));
}

}  // namespace
}  // namespace nevo
