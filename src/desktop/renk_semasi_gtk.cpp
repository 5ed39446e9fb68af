#include "desktop/renk_semasi_gtk.hpp"

#include <gtk/gtk.h>

#include <cstdint>
#include <optional>

#include "desktop/masaustu_portali_gtk.hpp"
#include "desktop/renk_semasi.hpp"

namespace nevo {
namespace {

constexpr const char* AYARLAR = "org.freedesktop.portal.Settings";
constexpr const char* GORUNUM = "org.freedesktop.appearance";
constexpr const char* RENK_SEMASI = "color-scheme";
constexpr const char* KOYU_TEMA = "gtk-application-prefer-dark-theme";

// The portal's `Read` wraps the value in one variant more than its `SettingChanged` does
// (older portals, which offer only `Read`, as newer ones): every wrapping is taken off.
std::optional<std::uint32_t> sayiDegeri(GVariant* deger) {
  Degisken ic(g_variant_ref(deger));
  while (g_variant_is_of_type(ic.get(), G_VARIANT_TYPE_VARIANT)) {
    ic.reset(g_variant_get_variant(ic.get()));
  }
  if (!g_variant_is_of_type(ic.get(), G_VARIANT_TYPE_UINT32)) return std::nullopt;
  return g_variant_get_uint32(ic.get());
}

}  // namespace

// The dark-theme preference is the toolkit's setting the web engine derives the page's
// colour scheme from; resetting it gives the desktop's own session-wide value back.
void RenkSemasiIzleyicisiGtk::uygula(GVariant* deger) {
  GtkSettings* ayarlar = gtk_settings_get_default();
  if (ayarlar == nullptr) return;
  gboolean koyu = FALSE;
  g_object_get(ayarlar, KOYU_TEMA, &koyu, nullptr);
  switch (koyuTemaAdimi(renkSemasi(sayiDegeri(deger)), koyu != FALSE, ayarlandi_)) {
    case KoyuTemaAdimi::Dokunma:
      return;
    case KoyuTemaAdimi::KoyuYap:
      g_object_set(ayarlar, KOYU_TEMA, TRUE, nullptr);
      ayarlandi_ = true;
      return;
    case KoyuTemaAdimi::AcikYap:
      g_object_set(ayarlar, KOYU_TEMA, FALSE, nullptr);
      ayarlandi_ = true;
      return;
    case KoyuTemaAdimi::Sifirla:
      gtk_settings_reset_property(ayarlar, KOYU_TEMA);
      ayarlandi_ = false;
      return;
  }
}

// Subscribed before any read, so that a change made meanwhile is not missed. The shell never
// starts the portal itself (the desktop's session does): each time the portal's name
// appears, at launch or later, the value is read afresh.
RenkSemasiIzleyicisiGtk::RenkSemasiIzleyicisiGtk(GDBusConnection* hat)
    : hat_(hat != nullptr ? static_cast<GDBusConnection*>(g_object_ref(hat)) : nullptr) {
  if (!hat_) return;
  abonelik_ = g_dbus_connection_signal_subscribe(hat_.get(), PORTAL, AYARLAR, "SettingChanged",
                                                 MASAUSTU_YOLU, GORUNUM, G_DBUS_SIGNAL_FLAGS_NONE,
                                                 &RenkSemasiIzleyicisiGtk::degisti, this, nullptr);
  izleme_ =
      g_bus_watch_name_on_connection(hat_.get(), PORTAL, G_BUS_NAME_WATCHER_FLAGS_NONE,
                                     &RenkSemasiIzleyicisiGtk::portalGeldi, nullptr, this, nullptr);
}

RenkSemasiIzleyicisiGtk::~RenkSemasiIzleyicisiGtk() {
  if (iptal_) g_cancellable_cancel(iptal_.get());
  if (izleme_ != 0) g_bus_unwatch_name(izleme_);
  if (abonelik_ != 0) g_dbus_connection_signal_unsubscribe(hat_.get(), abonelik_);
}

void RenkSemasiIzleyicisiGtk::portalGeldi(GDBusConnection* hat, const gchar*, const gchar*,
                                          gpointer veri) {
  auto* izleyici = static_cast<RenkSemasiIzleyicisiGtk*>(veri);
  if (izleyici->iptal_) g_cancellable_cancel(izleyici->iptal_.get());
  izleyici->iptal_ = sahiplen(g_cancellable_new());
  izleyici->degisimGeldi_ = false;
  g_dbus_connection_call(hat, PORTAL, MASAUSTU_YOLU, AYARLAR, "Read",
                         g_variant_new("(ss)", GORUNUM, RENK_SEMASI), G_VARIANT_TYPE("(v)"),
                         G_DBUS_CALL_FLAGS_NO_AUTO_START, -1, izleyici->iptal_.get(),
                         &RenkSemasiIzleyicisiGtk::okundu, izleyici);
}

// A cancelled read belongs to a follower that is gone: nothing of it is touched. A portal
// that is missing or does not know the setting leaves the toolkit's setting as it is.
void RenkSemasiIzleyicisiGtk::okundu(GObject* kaynak, GAsyncResult* sonuc, gpointer veri) {
  GError* hata = nullptr;
  Degisken yanit(g_dbus_connection_call_finish(G_DBUS_CONNECTION(kaynak), sonuc, &hata));
  const bool iptal = hata != nullptr && g_error_matches(hata, G_IO_ERROR, G_IO_ERROR_CANCELLED);
  g_clear_error(&hata);
  if (iptal || !yanit) return;
  auto* izleyici = static_cast<RenkSemasiIzleyicisiGtk*>(veri);
  if (izleyici->degisimGeldi_) return;
  Degisken deger(g_variant_get_child_value(yanit.get(), 0));
  izleyici->uygula(deger.get());
}

void RenkSemasiIzleyicisiGtk::degisti(GDBusConnection*, const gchar*, const gchar*, const gchar*,
                                      const gchar*, GVariant* parametreler, gpointer veri) {
  if (!g_variant_is_of_type(parametreler, G_VARIANT_TYPE("(ssv)"))) return;
  const gchar* ad = nullptr;
  g_variant_get_child(parametreler, 1, "&s", &ad);
  if (g_strcmp0(ad, RENK_SEMASI) != 0) return;
  auto* izleyici = static_cast<RenkSemasiIzleyicisiGtk*>(veri);
  izleyici->degisimGeldi_ = true;
  Degisken deger(g_variant_get_child_value(parametreler, 2));
  izleyici->uygula(deger.get());
}

}  // namespace nevo
