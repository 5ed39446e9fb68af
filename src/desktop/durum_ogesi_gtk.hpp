#pragma once
#include <gio/gio.h>

#include <memory>
#include <optional>
#include <string>

#include "desktop/dbus_menusu_gtk.hpp"
#include "desktop/durum_ogesi.hpp"
#include "temel/glib_gtk.hpp"

namespace nevo {

// The status item as a StatusNotifierItem with its menu on a session bus, registered with
// every StatusNotifierWatcher that appears there (a host shows what its watcher lists), also
// one started after the shell or restarted. Both are exported the first time the item is
// shown and stay until the shell quits: hiding makes the item passive, which hosts do not
// show, and silences its menu; showing it again gives it a fresh menu.
class DurumOgesiGtk final : public DurumOgesi {
 public:
  // `simge` is the icon file's path; without one the item shows the initial instead.
  DurumOgesiGtk(GDBusConnection* hat, const std::optional<std::string>& simge);
  DurumOgesiGtk(const DurumOgesiGtk&) = delete;
  DurumOgesiGtk& operator=(const DurumOgesiGtk&) = delete;
  ~DurumOgesiGtk() override;

  void goster(const DurumOgesiTasarimi& tasarim,
              std::function<void(const std::string&)> secildi) override;
  void kaldir() override;

  static constexpr const char* YOL = "/StatusNotifierItem";
  static constexpr const char* MENU_YOLU = "/StatusNotifierItem/Menu";

 private:
  struct Nesne;
  void yayinla();
  void durumYay(const char* durum);

  GNesne<GDBusConnection> hat_;
  std::shared_ptr<Nesne> nesne_;
  std::unique_ptr<DbusMenusu> menu_;
  guint kayit_ = 0;
  guint izleme_ = 0;
};

}  // namespace nevo
