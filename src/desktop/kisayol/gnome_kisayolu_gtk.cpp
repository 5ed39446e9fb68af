#include "desktop/kisayol/gnome_kisayolu_gtk.hpp"

#include <gtk/gtk.h>

#include <cstring>
#include <functional>
#include <string>
#include <vector>

#include "desktop/kisayol/tus_cevirisi_gtk.hpp"
#include "temel/glib_gtk.hpp"
#include "temel/gsettings_gtk.hpp"

namespace nevo {
namespace {

constexpr const char* MEDYA_TUSLARI = "org.gnome.settings-daemon.plugins.media-keys";
constexpr const char* OZEL_BAGLAMA =
    "org.gnome.settings-daemon.plugins.media-keys.custom-keybinding";
constexpr const char* LISTE = "custom-keybindings";

// Where GNOME keeps the shortcuts of its window manager, shell and media keys.
constexpr const char* SEMALAR[] = {
    "org.gnome.desktop.wm.keybindings",
    "org.gnome.shell.keybindings",
    "org.gnome.settings-daemon.plugins.media-keys",
    "org.gnome.mutter.keybindings",
    "org.gnome.mutter.wayland.keybindings",
};

using Gezici = std::function<void(const std::string& ad, const char* hizlandirici)>;

void semayiGez(const Gezici& islev, GSettingsSchemaSource* kaynak, const char* ad) {
  GSettingsSchema* sema = g_settings_schema_source_lookup(kaynak, ad, TRUE);
  if (sema == nullptr) return;
  GNesne<GSettings> ayar = sahiplen(g_settings_new_full(sema, nullptr, nullptr));
  gchar** anahtarlar = g_settings_schema_list_keys(sema);
  for (gchar** a = anahtarlar; *a != nullptr; ++a) {
    const std::string onek = std::string(ad) + "." + *a;
    Degisken deger(g_settings_get_value(ayar.get(), *a));
    if (g_variant_is_of_type(deger.get(), G_VARIANT_TYPE_STRING)) {
      islev(onek, g_variant_get_string(deger.get(), nullptr));
    } else if (g_variant_is_of_type(deger.get(), G_VARIANT_TYPE_STRING_ARRAY)) {
      gsize sayi = 0;
      const gchar** liste = g_variant_get_strv(deger.get(), &sayi);
      for (gsize i = 0; i < sayi; ++i) islev(onek + "." + std::to_string(i), liste[i]);
      g_free(liste);
    }
  }
  g_strfreev(anahtarlar);
  g_settings_schema_unref(sema);
}

std::vector<std::string> yollar(GSettings* ayar) {
  std::vector<std::string> sonuc;
  gchar** liste = g_settings_get_strv(ayar, LISTE);
  for (gchar** y = liste; y != nullptr && *y != nullptr; ++y) sonuc.emplace_back(*y);
  g_strfreev(liste);
  return sonuc;
}

void yollariYaz(GSettings* ayar, const std::vector<std::string>& liste) {
  g_settings_set_strv(ayar, LISTE, metinDizisi(liste).data());
}

// The combination as GNOME compares it: the key's lower-case value and the modifiers a hot
// key can name.
bool ayniKombinasyon(const char* hizlandirici, guint deger, GdkModifierType durum) {
  constexpr int ADLI = GDK_CONTROL_MASK | GDK_MOD1_MASK | GDK_SHIFT_MASK | GDK_SUPER_MASK;
  guint onunki = 0;
  GdkModifierType onunDurumu{};
  gtk_accelerator_parse(hizlandirici, &onunki, &onunDurumu);
  return onunki != 0 && gdk_keyval_to_lower(onunki) == gdk_keyval_to_lower(deger) &&
         (onunDurumu & ADLI) == (durum & ADLI);
}

// GNOME's own key bindings or a custom binding other than ours hold the combination.
bool gnomeTutuyor(GSettings* medya, guint deger, GdkModifierType durum) {
  bool tutuyor = false;
  gnomeHizlandiricilari([&](const std::string&, const char* hizlandirici) {
    tutuyor = tutuyor || ayniKombinasyon(hizlandirici, deger, durum);
  });
  for (const auto& yol : yollar(medya)) {
    if (tutuyor || yol == GNOME_KISAYOL_YOLU) continue;
    GNesne<GSettings> baglama = sahiplen(g_settings_new_with_path(OZEL_BAGLAMA, yol.c_str()));
    GMetin hizlandirici(g_settings_get_string(baglama.get(), "binding"));
    tutuyor = ayniKombinasyon(hizlandirici.get(), deger, durum);
  }
  return tutuyor;
}

}  // namespace

void gnomeHizlandiricilari(const Gezici& islev) {
  GSettingsSchemaSource* kaynak = g_settings_schema_source_get_default();
  if (kaynak == nullptr) return;
  for (const char* ad : SEMALAR) semayiGez(islev, kaynak, ad);
}

bool gnomeKisayollariVar() { return ayarVar(MEDYA_TUSLARI) && ayarVar(OZEL_BAGLAMA); }

GnomeKisayolu::GnomeKisayolu(std::string komut, GApplication* uygulama)
    : komut_(std::move(komut)), uygulama_(uygulama) {}

GnomeKisayolu::~GnomeKisayolu() {
  if (eylemVar_ && uygulama_ != nullptr) {
    g_action_map_remove_action(G_ACTION_MAP(uygulama_), GNOME_KISAYOL_EYLEMI);
  }
}

// The press arrives as an action of the running application, on the main loop.
void GnomeKisayolu::isleyiciKur(std::function<void()> basildi) {
  *basildi_ = std::move(basildi);
  if (uygulama_ == nullptr || std::exchange(eylemVar_, true)) return;
  GNesne<GSimpleAction> eylem = sahiplen(g_simple_action_new(GNOME_KISAYOL_EYLEMI, nullptr));
  Sinyal<void(GSimpleAction*, GVariant*)>::bagla(
      eylem.get(), "activate",
      [zayif = std::weak_ptr<std::function<void()>>(basildi_)](GSimpleAction*, GVariant*) {
        auto islev = zayif.lock();
        if (islev && *islev) (*islev)();
      });
  g_action_map_add_action(G_ACTION_MAP(uygulama_), G_ACTION(eylem.get()));
}

// GNOME's settings answer at once.
void GnomeKisayolu::kaydet(std::uint32_t kod, std::uint32_t mod, Sonuc sonuc) {
  kaldir();
  const auto deger = tusDegeri(kod);
  GNesne<GSettings> medya = sahiplen(g_settings_new(MEDYA_TUSLARI));
  if (!deger || gnomeTutuyor(medya.get(), *deger, gdkDurumu(mod))) {
    sonuc(false);
    return;
  }
  GMetin hizlandirici(gtk_accelerator_name(*deger, gdkDurumu(mod)));
  GNesne<GSettings> baglama = sahiplen(g_settings_new_with_path(OZEL_BAGLAMA, GNOME_KISAYOL_YOLU));
  g_settings_set_string(baglama.get(), "name", "Nevo");
  g_settings_set_string(baglama.get(), "command", komut_.c_str());
  g_settings_set_string(baglama.get(), "binding", hizlandirici.get());
  auto liste = yollar(medya.get());
  liste.emplace_back(GNOME_KISAYOL_YOLU);
  yollariYaz(medya.get(), liste);
  g_settings_sync();
  sonuc(true);
}

void GnomeKisayolu::kaldir() {
  GNesne<GSettings> medya = sahiplen(g_settings_new(MEDYA_TUSLARI));
  auto liste = yollar(medya.get());
  const auto once = liste.size();
  std::erase(liste, std::string(GNOME_KISAYOL_YOLU));
  if (liste.size() == once) return;
  yollariYaz(medya.get(), liste);
  GNesne<GSettings> baglama = sahiplen(g_settings_new_with_path(OZEL_BAGLAMA, GNOME_KISAYOL_YOLU));
  for (const char* anahtar : {"name", "command", "binding"}) {
    g_settings_reset(baglama.get(), anahtar);
  }
  g_settings_sync();
}

std::unique_ptr<SicakTus> gnomeKisayoluOlustur() {
  const char* masaustu = g_getenv("XDG_CURRENT_DESKTOP");
  if (masaustu == nullptr || std::strstr(masaustu, "GNOME") == nullptr) return nullptr;
  if (!gnomeKisayollariVar()) return nullptr;
  GMetin program(g_file_read_link("/proc/self/exe", nullptr));
  if (!program) return nullptr;
  GMetin tirnakli(g_shell_quote(program.get()));
  return std::make_unique<GnomeKisayolu>(
      std::string(tirnakli.get()) + " --" + GNOME_KISAYOL_SECENEGI, g_application_get_default());
}

}  // namespace nevo
