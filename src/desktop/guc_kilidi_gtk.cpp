#include "desktop/guc_kilidi_gtk.hpp"

#include <array>
#include <optional>

#include "temel/glib_gtk.hpp"
#include "yapilandirma.hpp"

namespace nevo {
namespace {

constexpr int ZAMAN_ASIMI_MS = 2000;
constexpr guint32 ASKIYA_ALMA = 4;  // "suspend" for both GNOME and the portal

struct Servis {
  const char* ad;
  const char* yol;
  const char* arayuz;
};
constexpr std::array<Servis, 3> SERVISLER{{
    {"org.gnome.SessionManager", "/org/gnome/SessionManager", "org.gnome.SessionManager"},
    {"org.freedesktop.PowerManagement", "/org/freedesktop/PowerManagement/Inhibit",
     "org.freedesktop.PowerManagement.Inhibit"},
    {"org.freedesktop.portal.Desktop", "/org/freedesktop/portal/desktop",
     "org.freedesktop.portal.Inhibit"},
}};

Degisken cagir(GDBusConnection* hat, const char* ad, const char* yol, const char* arayuz,
               const char* yontem, GVariant* argumanlar) {
  GError* hata = nullptr;
  GVariant* sonuc =
      g_dbus_connection_call_sync(hat, ad, yol, arayuz, yontem, argumanlar, nullptr,
                                  G_DBUS_CALL_FLAGS_NO_AUTO_START, ZAMAN_ASIMI_MS, nullptr, &hata);
  g_clear_error(&hata);
  return Degisken(sonuc);
}

GVariant* inhibitArgumanlari(int servis, const std::string& uygulama, const std::string& neden) {
  if (servis == 0) {
    return g_variant_new("(susu)", uygulama.c_str(), 0u, neden.c_str(), ASKIYA_ALMA);
  }
  if (servis == 1) return g_variant_new("(ss)", uygulama.c_str(), neden.c_str());
  GVariantBuilder secenekler;
  g_variant_builder_init(&secenekler, G_VARIANT_TYPE_VARDICT);
  g_variant_builder_add(&secenekler, "{sv}", "reason", g_variant_new_string(neden.c_str()));
  return g_variant_new("(sua{sv})", "", ASKIYA_ALMA, &secenekler);
}

}  // namespace

std::uint32_t GucKilidiGtk::al(const std::string& neden) {
  auto hat = sahiplen(g_bus_get_sync(G_BUS_TYPE_SESSION, nullptr, nullptr));
  if (!hat) return 0;
  for (int i = 0; i < static_cast<int>(SERVISLER.size()); ++i) {
    const auto& s = SERVISLER[static_cast<std::size_t>(i)];
    auto cevap =
        cagir(hat.get(), s.ad, s.yol, s.arayuz, "Inhibit", inhibitArgumanlari(i, kimlik_, neden));
    if (!cevap) continue;
    Tutulan t{i, 0, {}};
    if (g_variant_is_of_type(cevap.get(), G_VARIANT_TYPE("(u)"))) {
      g_variant_get(cevap.get(), "(u)", &t.cerez);
    } else if (g_variant_is_of_type(cevap.get(), G_VARIANT_TYPE("(o)"))) {
      const char* istek = nullptr;
      g_variant_get(cevap.get(), "(&o)", &istek);
      t.istek = istek;
    } else {
      continue;
    }
    tutulanlar_[++sonKimlik_] = t;
    return sonKimlik_;
  }
  return 0;
}

void GucKilidiGtk::birak(std::uint32_t kimlik) {
  auto bulunan = tutulanlar_.find(kimlik);
  if (bulunan == tutulanlar_.end()) return;
  const Tutulan t = bulunan->second;
  tutulanlar_.erase(bulunan);
  auto hat = sahiplen(g_bus_get_sync(G_BUS_TYPE_SESSION, nullptr, nullptr));
  if (!hat) return;
  const auto& s = SERVISLER[static_cast<std::size_t>(t.servis)];
  if (t.servis == 0) {
    cagir(hat.get(), s.ad, s.yol, s.arayuz, "Uninhibit", g_variant_new("(u)", t.cerez));
  } else if (t.servis == 1) {
    cagir(hat.get(), s.ad, s.yol, s.arayuz, "UnInhibit", g_variant_new("(u)", t.cerez));
  } else {
    cagir(hat.get(), s.ad, t.istek.c_str(), "org.freedesktop.portal.Request", "Close", nullptr);
  }
}

std::unique_ptr<GucKilidi> gucKilidiOlustur() {
  return std::make_unique<GucKilidiGtk>(yapilandirma::UYGULAMA_KIMLIGI);
}

}  // namespace nevo
