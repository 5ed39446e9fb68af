#include <gio/gio.h>
#include <gtk/gtk.h>

#include <string>

#include "desktop/kisayol/kisayol_denetimi.hpp"
#include "desktop/kisayol/tus_cevirisi_gtk.hpp"
#include "temel/glib_gtk.hpp"

namespace nevo {
namespace {

// Where GNOME keeps the shortcuts of its window manager, shell and media keys.
constexpr const char* SEMALAR[] = {
    "org.gnome.desktop.wm.keybindings",
    "org.gnome.shell.keybindings",
    "org.gnome.settings-daemon.plugins.media-keys",
    "org.gnome.mutter.keybindings",
    "org.gnome.mutter.wayland.keybindings",
};

// One accelerator in the shape the check reads; nothing for one that does not parse or
// names a key the shared codes do not know.
void ekle(nlohmann::json& sonuc, const std::string& ad, const char* hizlandirici) {
  guint deger = 0;
  GdkModifierType durum{};
  gtk_accelerator_parse(hizlandirici, &deger, &durum);
  if (deger == 0) return;
  const auto kod = tusKodu(deger);
  if (!kod) return;
  sonuc[ad] = {{"enabled", true}, {"value", {{"parameters", {0, *kod, tusBayraklari(durum)}}}}};
}

void semayiOku(nlohmann::json& sonuc, GSettingsSchemaSource* kaynak, const char* ad) {
  GSettingsSchema* sema = g_settings_schema_source_lookup(kaynak, ad, TRUE);
  if (sema == nullptr) return;
  GNesne<GSettings> ayar = sahiplen(g_settings_new_full(sema, nullptr, nullptr));
  gchar** anahtarlar = g_settings_schema_list_keys(sema);
  for (gchar** a = anahtarlar; *a != nullptr; ++a) {
    const std::string onek = std::string(ad) + "." + *a;
    Degisken deger(g_settings_get_value(ayar.get(), *a));
    if (g_variant_is_of_type(deger.get(), G_VARIANT_TYPE_STRING)) {
      ekle(sonuc, onek, g_variant_get_string(deger.get(), nullptr));
    } else if (g_variant_is_of_type(deger.get(), G_VARIANT_TYPE_STRING_ARRAY)) {
      gsize sayi = 0;
      const gchar** liste = g_variant_get_strv(deger.get(), &sayi);
      for (gsize i = 0; i < sayi; ++i) ekle(sonuc, onek + "." + std::to_string(i), liste[i]);
      g_free(liste);
    }
  }
  g_strfreev(anahtarlar);
  g_settings_schema_unref(sema);
}

}  // namespace

// Missing schemas read as no shortcuts.
SistemKisayollari sistemKisayollariOku() {
  GSettingsSchemaSource* kaynak = g_settings_schema_source_get_default();
  if (kaynak == nullptr) return std::nullopt;
  nlohmann::json sonuc = nlohmann::json::object();
  for (const char* ad : SEMALAR) semayiOku(sonuc, kaynak, ad);
  return sonuc;
}

}  // namespace nevo
