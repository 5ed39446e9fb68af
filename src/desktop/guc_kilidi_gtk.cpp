#include "desktop/guc_kilidi_gtk.hpp"

#include <array>
#include <utility>

#include "desktop/masaustu_portali_gtk.hpp"
#include "temel/glib_gtk.hpp"
#include "yapilandirma.hpp"

namespace nevo {
namespace {

constexpr int ZAMAN_ASIMI_MS = 2000;
constexpr guint32 ASKIYA_ALMA = 4;  // "suspend" for both GNOME and the portal
constexpr std::size_t PORTAL_SIRASI = 2;

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
                             const std::string& neden, const std::string& jeton) {
  if (servis == 0) {
    return g_variant_new("(susu)", uygulama.c_str(), 0u, neden.c_str(), ASKIYA_ALMA);
  }
  if (servis == 1) return g_variant_new("(ss)", uygulama.c_str(), neden.c_str());
  GVariantBuilder secenekler;
  g_variant_builder_init(&secenekler, G_VARIANT_TYPE_VARDICT);
  g_variant_builder_add(&secenekler, "{sv}", "reason", g_variant_new_string(neden.c_str()));
  g_variant_builder_add(&secenekler, "{sv}", "handle_token", g_variant_new_string(jeton.c_str()));
  return g_variant_new("(sua{sv})", "", ASKIYA_ALMA, &secenekler);
}

}  // namespace

struct GucKilidiGtk::Tutma : std::enable_shared_from_this<GucKilidiGtk::Tutma> {
  GNesne<GDBusConnection> hat;
  std::string uygulama;
  std::string neden;
  Cevap cevap;                 // the core's, until the hold is refused, lost or released
  std::uint32_t kimlik = 0;    // the handle the core knows it by
  std::size_t servis = 0;      // index into the service table, tried in order
  bool tutuluyor = false;      // the service answered with a hold
  bool reddedildi = false;     // the portal's response refused it before its handle came
  std::uint32_t cerez = 0;     // the cookie of the session manager / power management
  std::string istek;           // the portal's request handle
  guint abonelik = 0;          // the portal request's response
  std::function<void()> unut;  // removes the hold from its owner's table

  ~Tutma() { aboneligiBitir(); }

  void aboneligiBitir() {
    if (abonelik != 0) g_dbus_connection_signal_unsubscribe(hat.get(), abonelik);
    abonelik = 0;
  }

  void dene() {
    if (servis >= SERVISLER.size()) {
      bildir(0, false);
      return;
    }
    const auto& s = SERVISLER[servis];
    const std::string jeton = "nevo_uyku_" + std::to_string(kimlik);
    if (servis == PORTAL_SIRASI) {
      istek = portalIstekYolu(hat.get(), jeton);
      dinle();
    }
    g_dbus_connection_call(hat.get(), s.ad, s.yol, s.arayuz, "Inhibit",
                           inhibitArgumanlari(servis, uygulama, neden, jeton), nullptr,
                           G_DBUS_CALL_FLAGS_NO_AUTO_START, ZAMAN_ASIMI_MS, nullptr,
                           &Tutma::cevapGeldi, new std::shared_ptr<Tutma>(shared_from_this()));
  }

  // Subscribed before the request is sent, so that a quick response is not missed.
  void dinle() {
    aboneligiBitir();
    abonelik = g_dbus_connection_signal_subscribe(
        hat.get(), PORTAL, PORTAL_ISTEGI, "Response", istek.c_str(), nullptr,
        G_DBUS_SIGNAL_FLAGS_NONE, &Tutma::portalYaniti, new std::weak_ptr<Tutma>(weak_from_this()),
        +[](gpointer veri) { delete static_cast<std::weak_ptr<Tutma>*>(veri); });
  }

  static void cevapGeldi(GObject* kaynak, GAsyncResult* sonuc, gpointer veri) {
    std::unique_ptr<std::shared_ptr<Tutma>> sahip(static_cast<std::shared_ptr<Tutma>*>(veri));
    auto tutma = *sahip;
    Degisken cevap(g_dbus_connection_call_finish(G_DBUS_CONNECTION(kaynak), sonuc, nullptr));
    const bool tutuldu = tutma->cevapAl(cevap.get());
    if (tutma->cevap == nullptr) {  // released meanwhile: what came is given back
      tutma->tutuluyor = tutuldu;
      tutma->serbestBirak();
      return;
    }
    if (!tutuldu) {
      tutma->aboneligiBitir();
      ++tutma->servis;
      tutma->dene();
      return;
    }
    if (tutma->reddedildi) {
      tutma->bildir(0, false);
      return;
    }
    tutma->tutuluyor = true;
    tutma->bildir(tutma->kimlik, true);
  }

  bool cevapAl(GVariant* yanit) {
    if (yanit == nullptr) return false;
    if (g_variant_is_of_type(yanit, G_VARIANT_TYPE("(u)"))) {
      g_variant_get(yanit, "(u)", &cerez);
      return true;
    }
    if (!g_variant_is_of_type(yanit, G_VARIANT_TYPE("(o)"))) return false;
    const char* yol = nullptr;
    g_variant_get(yanit, "(&o)", &yol);
    if (istek == yol) return true;
    istek = yol;  // an older portal answers on a path of its own
    if (!reddedildi) dinle();
    return true;
  }

  static void portalYaniti(GDBusConnection*, const gchar*, const gchar*, const gchar*, const gchar*,
                           GVariant* parametreler, gpointer veri) {
    auto tutma = static_cast<std::weak_ptr<Tutma>*>(veri)->lock();
    guint32 kod = 0;
    if (!tutma || !g_variant_is_of_type(parametreler, G_VARIANT_TYPE("(ua{sv})"))) return;
    g_variant_get(parametreler, "(u@a{sv})", &kod, nullptr);
    if (kod == 0) return;
    tutma->aboneligiBitir();
    if (!tutma->tutuluyor) {
      tutma->reddedildi = true;
      return;
    }
    tutma->tutuluyor = false;
    tutma->bildir(tutma->kimlik, false);
  }

  // The answer goes to the core once; a hold that ends here is forgotten by its owner.
  void bildir(std::uint32_t verilen, bool tutulan) {
    Cevap alan = tutulan ? cevap : std::exchange(cevap, nullptr);
    if (!tutulan) unut();
    if (alan) alan(verilen, tutulan);
  }

  // Sent without waiting for an answer; flushed so that it leaves even when the process
  // ends right after.
  void serbestBirak() {
    cevap = nullptr;
    aboneligiBitir();
    if (!tutuluyor) return;
    tutuluyor = false;
    const auto& s = SERVISLER[servis];
    if (servis == PORTAL_SIRASI) {
      cagir(s.ad, istek.c_str(), PORTAL_ISTEGI, "Close", nullptr);
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
void GucKilidiGtk::al(const std::string& neden, Cevap cevap) {
  auto hat = sahiplen(g_bus_get_sync(G_BUS_TYPE_SESSION, nullptr, nullptr));
  if (!hat) {
    cevap(0, false);
    return;
  }
  auto tutma = std::make_shared<Tutma>();
  tutma->hat = std::move(hat);
  tutma->uygulama = kimlik_;
  tutma->neden = neden;
  tutma->cevap = std::move(cevap);
  tutma->kimlik = ++sonKimlik_;
  std::weak_ptr<std::map<std::uint32_t, std::shared_ptr<Tutma>>> tablo = tutmalar_;
  tutma->unut = [tablo, kimlik = tutma->kimlik] {
    if (auto t = tablo.lock()) t->erase(kimlik);
  };
  (*tutmalar_)[tutma->kimlik] = tutma;
  tutma->dene();
}

void GucKilidiGtk::birak(std::uint32_t kimlik) {
  auto bulunan = tutmalar_->find(kimlik);
  if (bulunan == tutmalar_->end()) return;
  auto tutma = std::move(bulunan->second);
  tutmalar_->erase(bulunan);
  tutma->serbestBirak();
}

std::unique_ptr<GucKilidi> gucKilidiOlustur() {
  return std::make_unique<GucKilidiGtk>(yapilandirma::UYGULAMA_KIMLIGI);
}

}  // namespace nevo
