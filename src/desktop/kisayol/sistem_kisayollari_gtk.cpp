#include <gio/gio.h>
#include <gtk/gtk.h>

#include <string>

#include "desktop/kisayol/gnome_kisayolu_gtk.hpp"
#include "desktop/kisayol/kisayol_denetimi.hpp"
#include "desktop/kisayol/tus_cevirisi_gtk.hpp"
#include "temel/glib_gtk.hpp"

namespace nevo {
namespace {

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

}  // namespace

// Missing schemas read as no shortcuts.
SistemKisayollari sistemKisayollariOku() {
  if (g_settings_schema_source_get_default() == nullptr) return std::nullopt;
  nlohmann::json sonuc = nlohmann::json::object();
  gnomeHizlandiricilari(
      [&](const std::string& ad, const char* hizlandirici) { ekle(sonuc, ad, hizlandirici); });
  return sonuc;
}

}  // namespace nevo
