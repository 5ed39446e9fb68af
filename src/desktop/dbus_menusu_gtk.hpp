#pragma once
#include <gio/gio.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "desktop/durum_ogesi.hpp"
#include "temel/glib_gtk.hpp"

namespace nevo {

// A one-level menu of entries and separators on D-Bus, in the layout status-notifier hosts
// read and drive (com.canonical.dbusmenu). The root is item 0, the entries 1, 2, … in order.
class DbusMenusu {
 public:
  DbusMenusu(GDBusConnection* hat, const char* yol);
  DbusMenusu(const DbusMenusu&) = delete;
  DbusMenusu& operator=(const DbusMenusu&) = delete;
  ~DbusMenusu();

  // Shows `girdiler` from now on; a click on one calls `secildi` with its identifier.
  void kur(const std::vector<MenuCubuguGirdisi>& girdiler,
           std::function<void(const std::string&)> secildi);
  // Clicks do nothing until the next `kur`.
  void sustur();

 private:
  struct Nesne;
  GNesne<GDBusConnection> hat_;
  std::string yol_;
  std::shared_ptr<Nesne> nesne_;
  guint kayit_ = 0;
};

}  // namespace nevo
