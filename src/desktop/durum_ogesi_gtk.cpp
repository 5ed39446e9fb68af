#include <gtk/gtk.h>
#include <libayatana-appindicator/app-indicator.h>

#include <filesystem>
#include <memory>
#include <optional>
#include <string>

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

// The status item as a StatusNotifierItem with its menu on the session bus. It exists while
// it is wanted and a StatusNotifierWatcher is on the bus, which shows it: it is made when a
// watcher appears, also one started after the shell or restarted, and dropped when it leaves.
class DurumOgesiGtk final : public DurumOgesi {
 public:
  DurumOgesiGtk() = default;
  DurumOgesiGtk(const DurumOgesiGtk&) = delete;
  DurumOgesiGtk& operator=(const DurumOgesiGtk&) = delete;
  ~DurumOgesiGtk() override {
    kaldir();
    if (izleme_ != 0) g_bus_unwatch_name(izleme_);
  }

  void goster(const DurumOgesiTasarimi& tasarim,
              std::function<void(const std::string&)> secildi) override;
  void kaldir() override;

 private:
  static void izleyiciGeldi(GDBusConnection*, const char*, const char*, gpointer veri);
  static void izleyiciGitti(GDBusConnection*, const char*, gpointer veri);
  void olustur();
  void yokEt();

  guint izleme_ = 0;
  bool izleyiciVar_ = false;
  std::optional<DurumOgesiTasarimi> tasarim_;
  std::shared_ptr<std::function<void(const std::string&)>> secildi_;
  GNesne<AppIndicator> oge_;
  GNesne<GtkWidget> menu_;
};

void DurumOgesiGtk::goster(const DurumOgesiTasarimi& tasarim,
                           std::function<void(const std::string&)> secildi) {
  kaldir();
  tasarim_ = tasarim;
  secildi_ = std::make_shared<std::function<void(const std::string&)>>(std::move(secildi));
  if (izleme_ == 0) {
    izleme_ = g_bus_watch_name(G_BUS_TYPE_SESSION, "org.kde.StatusNotifierWatcher",
                               G_BUS_NAME_WATCHER_FLAGS_NONE, izleyiciGeldi, izleyiciGitti, this,
                               nullptr);
  } else if (izleyiciVar_) {
    olustur();
  }
}

void DurumOgesiGtk::kaldir() {
  tasarim_.reset();
  secildi_.reset();
  yokEt();
}

void DurumOgesiGtk::izleyiciGeldi(GDBusConnection*, const char*, const char*, gpointer veri) {
  auto* oge = static_cast<DurumOgesiGtk*>(veri);
  oge->izleyiciVar_ = true;
  oge->yokEt();
  if (oge->tasarim_) oge->olustur();
}

void DurumOgesiGtk::izleyiciGitti(GDBusConnection*, const char*, gpointer veri) {
  auto* oge = static_cast<DurumOgesiGtk*>(veri);
  oge->izleyiciVar_ = false;
  oge->yokEt();
}

void DurumOgesiGtk::olustur() {
  const auto simge = kaynakYolu(SIMGE_DOSYASI);
  const std::string dizin =
      simge ? std::filesystem::path(*simge).parent_path().string() : std::string();
  const std::string ad = simge ? std::filesystem::path(*simge).stem().string() : "";
  oge_ = gostergeOlustur(ad.c_str(), dizin.c_str());
  app_indicator_set_title(oge_.get(), tasarim_->ipucu.c_str());
  if (!simge) {
    app_indicator_set_label(oge_.get(), tasarim_->basHarf.c_str(), tasarim_->basHarf.c_str());
  }
  menu_ = paylas(gtk_menu_new());
  for (const auto& girdi : tasarim_->girdiler) {
    GtkWidget* oge = girdi.kimlik.empty() ? gtk_separator_menu_item_new()
                                          : gtk_menu_item_new_with_label(girdi.baslik.c_str());
    if (!girdi.kimlik.empty()) {
      Sinyal<void(GtkMenuItem*)>::bagla(oge, "activate",
                                        [secildi = secildi_, kimlik = girdi.kimlik](GtkMenuItem*) {
                                          if (*secildi) (*secildi)(kimlik);
                                        });
    }
    gtk_menu_shell_append(GTK_MENU_SHELL(menu_.get()), oge);
  }
  gtk_widget_show_all(menu_.get());
  app_indicator_set_menu(oge_.get(), GTK_MENU(menu_.get()));
  app_indicator_set_status(oge_.get(), APP_INDICATOR_STATUS_ACTIVE);
}

void DurumOgesiGtk::yokEt() {
  if (oge_) app_indicator_set_status(oge_.get(), APP_INDICATOR_STATUS_PASSIVE);
  oge_.reset();
  if (auto menu = std::move(menu_)) gtk_widget_destroy(menu.get());
}

}  // namespace

std::unique_ptr<DurumOgesi> durumOgesiOlustur() { return std::make_unique<DurumOgesiGtk>(); }

}  // namespace nevo
