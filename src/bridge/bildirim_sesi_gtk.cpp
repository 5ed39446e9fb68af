#include "bridge/bildirim_sesi_gtk.hpp"

#include <canberra-gtk.h>

#include <memory>
#include <string>

#include "temel/glib_gtk.hpp"
#include "temel/gsettings_gtk.hpp"

namespace nevo {
namespace {

constexpr const char* OLAY = "message-new-instant";
constexpr int ZAMAN_ASIMI_MS = 2000;

struct Ses {
  ca_context* baglam;
  std::string aciklama;  // the notification's title, for those who do not hear it
};

void oynat(gpointer veri, gpointer) {
  std::unique_ptr<Ses> ses(static_cast<Ses*>(veri));
  ca_context_play(ses->baglam, 0, CA_PROP_EVENT_ID, OLAY, CA_PROP_EVENT_DESCRIPTION,
                  ses->aciklama.c_str(), CA_PROP_MEDIA_ROLE, "event", nullptr);
}

// One worker for the whole process, so sounds keep their order.
void sirayaKoy(std::unique_ptr<Ses> ses) {
  static GThreadPool* calici = g_thread_pool_new(oynat, nullptr, 1, FALSE, nullptr);
  g_thread_pool_push(calici, ses.release(), nullptr);
}

// GNOME's "do not disturb" turns its banners off.
bool gnomeSessiz() {
  constexpr const char* SEMA = "org.gnome.desktop.notifications";
  if (!ayarVar(SEMA, "show-banners")) return false;
  auto ayarlar = sahiplen(g_settings_new(SEMA));
  return !g_settings_get_boolean(ayarlar.get(), "show-banners");
}

bool engellendi(GVariant* yanit) {
  if (yanit == nullptr || !g_variant_is_of_type(yanit, G_VARIANT_TYPE("(v)"))) return false;
  Degisken deger(g_variant_get_child_value(yanit, 0));
  Degisken ic(g_variant_get_variant(deger.get()));
  return g_variant_is_of_type(ic.get(), G_VARIANT_TYPE_BOOLEAN) && g_variant_get_boolean(ic.get());
}

}  // namespace

// The context is the display's: it follows the desktop's sound theme and its choice to
// play event sounds at all.
void bildirimSesiCal(GDBusConnection* hat, const std::string& baslik) {
  if (gnomeSessiz()) return;
  ca_context* baglam = ca_gtk_context_get();
  if (baglam == nullptr) return;
  auto ses = std::make_unique<Ses>(Ses{baglam, baslik});
  if (hat == nullptr) {
    sirayaKoy(std::move(ses));
    return;
  }
  g_dbus_connection_call(
      hat, "org.freedesktop.Notifications", "/org/freedesktop/Notifications",
      "org.freedesktop.DBus.Properties", "Get",
      g_variant_new("(ss)", "org.freedesktop.Notifications", "Inhibited"), nullptr,
      G_DBUS_CALL_FLAGS_NO_AUTO_START, ZAMAN_ASIMI_MS, nullptr,
      +[](GObject* kaynak, GAsyncResult* sonuc, gpointer veri) {
        std::unique_ptr<Ses> bekleyen(static_cast<Ses*>(veri));
        Degisken yanit(g_dbus_connection_call_finish(G_DBUS_CONNECTION(kaynak), sonuc, nullptr));
        if (!engellendi(yanit.get())) sirayaKoy(std::move(bekleyen));
      },
      ses.release());
}

}  // namespace nevo
