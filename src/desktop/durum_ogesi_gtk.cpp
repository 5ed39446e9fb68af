#include <gtk/gtk.h>
#include <libayatana-appindicator/app-indicator.h>

#include <filesystem>
#include <string>

#include "desktop/menu_cubugu_ogesi.hpp"
#include "temel/glib_gtk.hpp"
#include "temel/kaynaklar.hpp"
#include "yapilandirma.hpp"

namespace nevo {
namespace {

// A StatusNotifierWatcher on the session bus takes status items to show them.
bool izleyiciVar() {
  GNesne<GDBusConnection> hat = sahiplen(g_bus_get_sync(G_BUS_TYPE_SESSION, nullptr, nullptr));
  if (!hat) return false;
  Degisken cevap(g_dbus_connection_call_sync(
      hat.get(), "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
      "NameHasOwner", g_variant_new("(s)", "org.kde.StatusNotifierWatcher"), G_VARIANT_TYPE("(b)"),
      G_DBUS_CALL_FLAGS_NONE, 1000, nullptr, nullptr));
  gboolean var = FALSE;
  if (cevap) g_variant_get(cevap.get(), "(b)", &var);
  return var;
}

// The status item as a StatusNotifierItem with its menu on the session bus. Where no
// StatusNotifierWatcher is on the bus (GNOME without its extension) nothing is shown: the
// library's own fallback for that case crashed the shell a moment later (a read of an
// invalid address inside the library), so it is never reached.
class DurumOgesiGtk final : public DurumOgesi {
 public:
  DurumOgesiGtk() = default;
  DurumOgesiGtk(const DurumOgesiGtk&) = delete;
  DurumOgesiGtk& operator=(const DurumOgesiGtk&) = delete;
  ~DurumOgesiGtk() override { kaldir(); }

  void goster(const DurumOgesiTasarimi& tasarim,
              std::function<void(const std::string&)> secildi) override;
  void kaldir() override;

 private:
  GNesne<AppIndicator> oge_;
  GNesne<GtkWidget> menu_;
};

void DurumOgesiGtk::goster(const DurumOgesiTasarimi& tasarim,
                           std::function<void(const std::string&)> secildi) {
  kaldir();
  if (!izleyiciVar()) return;
  const auto simge = kaynakYolu(SIMGE_DOSYASI);
  const std::string dizin =
      simge ? std::filesystem::path(*simge).parent_path().string() : std::string();
  const std::string ad = simge ? std::filesystem::path(*simge).stem().string() : "";
  oge_ = sahiplen(app_indicator_new_with_path(yapilandirma::UYGULAMA_KIMLIGI, ad.c_str(),
                                              APP_INDICATOR_CATEGORY_APPLICATION_STATUS,
                                              dizin.c_str()));
  app_indicator_set_title(oge_.get(), tasarim.ipucu.c_str());
  if (!simge) app_indicator_set_label(oge_.get(), tasarim.basHarf.c_str(), tasarim.basHarf.c_str());

  menu_ = paylas(gtk_menu_new());
  auto ortak = std::make_shared<std::function<void(const std::string&)>>(std::move(secildi));
  for (const auto& girdi : tasarim.girdiler) {
    GtkWidget* oge = girdi.kimlik.empty() ? gtk_separator_menu_item_new()
                                          : gtk_menu_item_new_with_label(girdi.baslik.c_str());
    if (!girdi.kimlik.empty()) {
      Sinyal<void(GtkMenuItem*)>::bagla(oge, "activate",
                                        [ortak, kimlik = girdi.kimlik](GtkMenuItem*) {
                                          if (*ortak) (*ortak)(kimlik);
                                        });
    }
    gtk_menu_shell_append(GTK_MENU_SHELL(menu_.get()), oge);
  }
  gtk_widget_show_all(menu_.get());
  app_indicator_set_menu(oge_.get(), GTK_MENU(menu_.get()));
  app_indicator_set_status(oge_.get(), APP_INDICATOR_STATUS_ACTIVE);
}

void DurumOgesiGtk::kaldir() {
  if (oge_) app_indicator_set_status(oge_.get(), APP_INDICATOR_STATUS_PASSIVE);
  oge_.reset();
  if (auto menu = std::move(menu_)) gtk_widget_destroy(menu.get());
}

}  // namespace

std::unique_ptr<DurumOgesi> durumOgesiOlustur() { return std::make_unique<DurumOgesiGtk>(); }

}  // namespace nevo
