#pragma once
#include <gio/gio.h>

#include "temel/glib_gtk.hpp"

namespace nevo {

// Follows the desktop's light or dark choice through the desktop portal's settings: read
// whenever the portal is there (at start, or when it starts later), then every change it
// announces, live. The bus is never waited on, and the portal is never started by the shell.
// The toolkit's dark-theme preference carries the choice to the web view (the page's
// `prefers-color-scheme`) and to the toolkit's own dialogs (the shortcut recorder); the
// shell's surfaces that paint colours of their own (curtain, quick-entry panel, offline
// page, window buttons) keep them. Without a portal, or with no preference, the toolkit's
// own setting stands.
class RenkSemasiIzleyicisiGtk {
 public:
  // `hat` is the session bus; none leaves the toolkit's setting alone.
  explicit RenkSemasiIzleyicisiGtk(GDBusConnection* hat);
  RenkSemasiIzleyicisiGtk(const RenkSemasiIzleyicisiGtk&) = delete;
  RenkSemasiIzleyicisiGtk& operator=(const RenkSemasiIzleyicisiGtk&) = delete;
  ~RenkSemasiIzleyicisiGtk();

 private:
  static void portalGeldi(GDBusConnection* hat, const gchar*, const gchar*, gpointer veri);
  static void okundu(GObject* kaynak, GAsyncResult* sonuc, gpointer veri);
  static void degisti(GDBusConnection*, const gchar*, const gchar*, const gchar*, const gchar*,
                      GVariant* parametreler, gpointer veri);
  void uygula(GVariant* deger);
  GNesne<GDBusConnection> hat_;
  GNesne<GCancellable> iptal_;
  guint abonelik_ = 0;
  guint izleme_ = 0;
  bool degisimGeldi_ = false;  // a change announced before the read answered wins
  bool ayarlandi_ = false;     // the toolkit's setting holds the shell's value, not its own
};

}  // namespace nevo
