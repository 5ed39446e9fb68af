#include <gtk/gtk.h>
#include <libayatana-appindicator/app-indicator.h>

#include <filesystem>
#include <memory>
#include <string>
#include <utility>

#include "desktop/menu_cubugu_ogesi.hpp"
#include "temel/glib_gtk.hpp"
#include "temel/kaynaklar.hpp"
#include "yapilandirma.hpp"

namespace nevo {
namespace {

// The indicator without the library's fallback to a tray icon, which read an invalid address
// a moment after it started where no StatusNotifierWatcher was on the bus.
GType yedeksizGostergeTuru() {
  static const GType tur = g_type_register_static_simple(
      APP_INDICATOR_TYPE, "NevoYedeksizGosterge", sizeof(AppIndicatorClass),
      [](gpointer sinif, gpointer) {
        auto* gosterge = static_cast<AppIndicatorClass*>(sinif);
        gosterge->fallback = nullptr;
        gosterge->unfallback = nullptr;
      },
      sizeof(AppIndicator), nullptr, GTypeFlags{});
  return tur;
}

GNesne<AppIndicator> gostergeOlustur(const char* simgeAdi, const char* simgeDizini) {
  return sahiplen(APP_INDICATOR(g_object_new(
      yedeksizGostergeTuru(), "id", yapilandirma::UYGULAMA_KIMLIGI, "category", "ApplicationStatus",
      "icon-name", simgeAdi, "icon-theme-path", simgeDizini, nullptr)));
}

// The status item as a StatusNotifierItem with its menu on the session bus. One indicator
// serves the shell's whole life from the first time the item is wanted: hiding it makes it
// passive, which hosts do not show, and showing it again gives it a fresh menu. The library
// registers it with every StatusNotifierWatcher that appears, also one started after the shell
// or restarted; a second indicator would need the first one's object path.
class DurumOgesiGtk final : public DurumOgesi {
 public:
  DurumOgesiGtk() = default;
  DurumOgesiGtk(const DurumOgesiGtk&) = delete;
  DurumOgesiGtk& operator=(const DurumOgesiGtk&) = delete;
  ~DurumOgesiGtk() override {
    kaldir();
    oge_.reset();
    if (auto menu = std::move(menu_)) gtk_widget_destroy(menu.get());
  }

  void goster(const DurumOgesiTasarimi& tasarim,
              std::function<void(const std::string&)> secildi) override;
  void kaldir() override;

 private:
  void menuKur(const DurumOgesiTasarimi& tasarim);

  std::shared_ptr<std::function<void(const std::string&)>> secildi_;
  GNesne<AppIndicator> oge_;
  GNesne<GtkWidget> menu_;
};

void DurumOgesiGtk::goster(const DurumOgesiTasarimi& tasarim,
                           std::function<void(const std::string&)> secildi) {
  kaldir();
  secildi_ = std::make_shared<std::function<void(const std::string&)>>(std::move(secildi));
  const auto simge = kaynakYolu(SIMGE_DOSYASI);
  if (!oge_) {
    const std::string dizin =
        simge ? std::filesystem::path(*simge).parent_path().string() : std::string();
    const std::string ad = simge ? std::filesystem::path(*simge).stem().string() : "";
    oge_ = gostergeOlustur(ad.c_str(), dizin.c_str());
  }
  app_indicator_set_title(oge_.get(), tasarim.ipucu.c_str());
  if (!simge) app_indicator_set_label(oge_.get(), tasarim.basHarf.c_str(), tasarim.basHarf.c_str());
  menuKur(tasarim);
  app_indicator_set_status(oge_.get(), APP_INDICATOR_STATUS_ACTIVE);
}

void DurumOgesiGtk::kaldir() {
  // The menu of a hidden item stays on the bus: an entry chosen from it does nothing.
  if (secildi_) *secildi_ = nullptr;
  secildi_.reset();
  if (oge_) app_indicator_set_status(oge_.get(), APP_INDICATOR_STATUS_PASSIVE);
}

void DurumOgesiGtk::menuKur(const DurumOgesiTasarimi& tasarim) {
  GNesne<GtkWidget> menu = paylas(gtk_menu_new());
  for (const auto& girdi : tasarim.girdiler) {
    GtkWidget* oge = girdi.kimlik.empty() ? gtk_separator_menu_item_new()
                                          : gtk_menu_item_new_with_label(girdi.baslik.c_str());
    if (!girdi.kimlik.empty()) {
      Sinyal<void(GtkMenuItem*)>::bagla(oge, "activate",
                                        [secildi = secildi_, kimlik = girdi.kimlik](GtkMenuItem*) {
                                          if (*secildi) (*secildi)(kimlik);
                                        });
    }
    gtk_menu_shell_append(GTK_MENU_SHELL(menu.get()), oge);
  }
  gtk_widget_show_all(menu.get());
  app_indicator_set_menu(oge_.get(), GTK_MENU(menu.get()));
  if (auto eski = std::exchange(menu_, std::move(menu))) gtk_widget_destroy(eski.get());
}

}  // namespace

std::unique_ptr<DurumOgesi> durumOgesiOlustur() { return std::make_unique<DurumOgesiGtk>(); }

}  // namespace nevo
