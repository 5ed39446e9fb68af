#include "desktop/guc_kilidi_gtk.hpp"

#include <array>

#include "desktop/masaustu_portali_gtk.hpp"
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
    {PORTAL, MASAUSTU_YOLU, "org.freedesktop.portal.Inhibit"},
}};

GVariant* inhibitArgumanlari(std::size_t servis, const std::string& uygulama,
                             const std::string& neden) {
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

struct GucKilidiGtk::Tutma {
  GNesne<GDBusConnection> hat;
  std::string uygulama;
  std::string neden;
  std::size_t servis = 0;   // index into the service table, tried in order
  bool tutuluyor = false;   // the service answered with a hold
  bool birakildi = false;   // the core no longer wants it
  std::uint32_t cerez = 0;  // the cookie of the session manager / power management
  std::string istek;        // the portal's request handle

  static void dene(std::shared_ptr<Tutma> tutma) {
    if (tutma->servis >= SERVISLER.size()) return;
    const auto& s = SERVISLER[tutma->servis];
    GVariant* argumanlar = inhibitArgumanlari(tutma->servis, tutma->uygulama, tutma->neden);
    GDBusConnection* hat = tutma->hat.get();
    g_dbus_connection_call(hat, s.ad, s.yol, s.arayuz, "Inhibit", argumanlar, nullptr,
                           G_DBUS_CALL_FLAGS_NO_AUTO_START, ZAMAN_ASIMI_MS, nullptr,
                           &Tutma::cevapGeldi, new std::shared_ptr<Tutma>(std::move(tutma)));
  }

  static void cevapGeldi(GObject* kaynak, GAsyncResult* sonuc, gpointer veri) {
    std::unique_ptr<std::shared_ptr<Tutma>> sahip(static_cast<std::shared_ptr<Tutma>*>(veri));
    auto tutma = *sahip;
    Degisken cevap(g_dbus_connection_call_finish(G_DBUS_CONNECTION(kaynak), sonuc, nullptr));
    if (!tutma->cevapAl(cevap.get())) {
      if (tutma->birakildi) return;
      ++tutma->servis;
      dene(std::move(tutma));
      return;
    }
    if (tutma->birakildi) tutma->serbestBirak();
  }

  bool cevapAl(GVariant* cevap) {
    if (cevap == nullptr) return false;
    if (g_variant_is_of_type(cevap, G_VARIANT_TYPE("(u)"))) {
      g_variant_get(cevap, "(u)", &cerez);
    } else if (g_variant_is_of_type(cevap, G_VARIANT_TYPE("(o)"))) {
      const char* yol = nullptr;
      g_variant_get(cevap, "(&o)", &yol);
      istek = yol;
    } else {
      return false;
    }
    tutuluyor = true;
    return true;
  }

  // Sent without waiting for an answer; flushed so that it leaves even when the process
  // ends right after.
  void serbestBirak() {
    if (!tutuluyor) return;
    tutuluyor = false;
    const auto& s = SERVISLER[servis];
    if (servis == 2) {
      cagir(s.ad, istek.c_str(), "org.freedesktop.portal.Request", "Close", nullptr);
    } else {
      cagir(s.ad, s.yol, s.arayuz, servis == 0 ? "Uninhibit" : "UnInhibit",
            g_variant_new("(u)", cerez));
    }
    g_dbus_connection_flush_sync(hat.get(), nullptr, nullptr);
  }

  void cagir(const char* ad, const char* yol, const char* arayuz, const char* yontem,
             GVariant* argumanlar) {
    g_dbus_connection_call(hat.get(), ad, yol, arayuz, yontem, argumanlar, nullptr,
                           G_DBUS_CALL_FLAGS_NO_AUTO_START, ZAMAN_ASIMI_MS, nullptr, nullptr,
                           nullptr);
  }
};

// The application is already on the session bus, so getting it does not wait.
std::uint32_t GucKilidiGtk::al(const std::string& neden) {
  auto hat = sahiplen(g_bus_get_sync(G_BUS_TYPE_SESSION, nullptr, nullptr));
  if (!hat) return 0;
  auto tutma = std::make_shared<Tutma>();
  tutma->hat = std::move(hat);
  tutma->uygulama = kimlik_;
  tutma->neden = neden;
  tutmalar_[++sonKimlik_] = tutma;
  Tutma::dene(std::move(tutma));
  return sonKimlik_;
}

void GucKilidiGtk::birak(std::uint32_t kimlik) {
  auto bulunan = tutmalar_.find(kimlik);
  if (bulunan == tutmalar_.end()) return;
  auto tutma = std::move(bulunan->second);
  tutmalar_.erase(bulunan);
  tutma->birakildi = true;
  tutma->serbestBirak();
}

std::unique_ptr<GucKilidi> gucKilidiOlustur() {
  return std::make_unique<GucKilidiGtk>(yapilandirma::UYGULAMA_KIMLIGI);
}

}  // namespace nevo
