#include "desktop/kisayol/portal_kisayolu_gtk.hpp"

#include <gdk/gdk.h>

#include <string_view>
#include <utility>

#include "desktop/hizli_gorunum.hpp"
#include "desktop/kisayol/tus_cevirisi_gtk.hpp"
#include "desktop/masaustu_portali_gtk.hpp"
#include "temel/glib_gtk.hpp"

namespace nevo {
namespace {

constexpr const char* KISAYOLLAR = "org.freedesktop.portal.GlobalShortcuts";
constexpr const char* OTURUM = "org.freedesktop.portal.Session";
constexpr const char* ACIKLAMA = HizliPanelYerlesimi::ad;

void secenekEkle(GVariantBuilder* secenekler, const char* ad, const std::string& deger) {
  g_variant_builder_add(secenekler, "{sv}", ad, g_variant_new_string(deger.c_str()));
}

// A signal's handler that never outlives the session it serves.
using Zayif = std::weak_ptr<SicakTusPortal::Oturum>;
void zayifBirak(gpointer veri) { delete static_cast<Zayif*>(veri); }

}  // namespace

// One session with the portal, from CreateSession until Close. It stays alive after
// `kaldir` only while the portal still owes it the session handle, so that the session is
// closed when the handle arrives.
struct SicakTusPortal::Oturum : std::enable_shared_from_this<SicakTusPortal::Oturum> {
  GNesne<GDBusConnection> baglanti;
  std::weak_ptr<std::function<void()>> basildi;
  Sonuc karar;  // receives the verdict, until it is given or the session is released
  std::string tetik;
  std::string jeton;
  std::string oturumYolu;
  guint istekAboneligi = 0;
  guint basmaAboneligi = 0;
  bool bagli = false;      // the portal accepted the shortcut
  bool birakildi = false;  // released by `kaldir`
  bool bitti = false;      // nothing more will come from the portal

  ~Oturum() { kes(); }

  void kes() {
    aboneligiBitir(istekAboneligi);
    aboneligiBitir(basmaAboneligi);
  }

  void aboneligiBitir(guint& abonelik) {
    if (abonelik != 0) g_dbus_connection_signal_unsubscribe(baglanti.get(), abonelik);
    abonelik = 0;
  }

  void baslat() {
    GVariantBuilder secenekler;
    g_variant_builder_init(&secenekler, G_VARIANT_TYPE_VARDICT);
    secenekEkle(&secenekler, "handle_token", jeton + "_a");
    secenekEkle(&secenekler, "session_handle_token", jeton);
    istekle(jeton + "_a", "CreateSession", g_variant_new("(a{sv})", &secenekler),
            &Oturum::oturumGeldi);
  }

  // Sends `yontem` and waits for the answer on its request object, subscribed to first so
  // that a quick answer is not missed.
  void istekle(const std::string& istekJetonu, const char* yontem, GVariant* girdi,
               void (Oturum::*cevap)(guint32, GVariant*)) {
    aboneligiBitir(istekAboneligi);
    struct Bekleyen {
      Zayif oturum;
      void (Oturum::*cevap)(guint32, GVariant*);
    };
    istekAboneligi = g_dbus_connection_signal_subscribe(
        baglanti.get(), PORTAL, PORTAL_ISTEGI, "Response",
        portalIstekYolu(baglanti.get(), istekJetonu).c_str(), nullptr, G_DBUS_SIGNAL_FLAGS_NONE,
        +[](GDBusConnection*, const gchar*, const gchar*, const gchar*, const gchar*,
            GVariant* parametreler, gpointer veri) {
          const auto* bekleyen = static_cast<Bekleyen*>(veri);
          auto oturum = bekleyen->oturum.lock();
          if (!oturum || !g_variant_is_of_type(parametreler, G_VARIANT_TYPE("(ua{sv})"))) return;
          guint32 sonuc = 0;
          GVariant* sonuclar = nullptr;
          g_variant_get(parametreler, "(u@a{sv})", &sonuc, &sonuclar);
          Degisken tutucu(sonuclar);
          ((*oturum).*(bekleyen->cevap))(sonuc, sonuclar);
        },
        new Bekleyen{weak_from_this(), cevap},
        +[](gpointer veri) { delete static_cast<Bekleyen*>(veri); });
    g_dbus_connection_call(
        baglanti.get(), PORTAL, MASAUSTU_YOLU, KISAYOLLAR, yontem, girdi, G_VARIANT_TYPE("(o)"),
        G_DBUS_CALL_FLAGS_NONE, -1, nullptr,
        +[](GObject* kaynak, GAsyncResult* sonuc, gpointer veri) {
          std::unique_ptr<Zayif> zayif(static_cast<Zayif*>(veri));
          GError* hata = nullptr;
          GVariant* yanit = g_dbus_connection_call_finish(G_DBUS_CONNECTION(kaynak), sonuc, &hata);
          if (yanit != nullptr) g_variant_unref(yanit);
          if (hata == nullptr) return;
          g_error_free(hata);
          // No request was made: no answer will come.
          if (auto oturum = zayif->lock()) oturum->sonlandi();
        },
        new Zayif(weak_from_this()));
  }

  // Without the portal's word on the binding, it is not bound.
  void sonlandi() {
    bitti = true;
    kes();
    bildir(false);
  }

  void bildir(bool kabul) {
    if (auto islev = std::exchange(karar, nullptr)) islev(kabul);
  }

  void oturumGeldi(guint32 sonuc, GVariant* sonuclar) {
    const gchar* yol = nullptr;
    if (sonuc != 0 || !g_variant_lookup(sonuclar, "session_handle", "&s", &yol) ||
        !g_variant_is_object_path(yol)) {
      sonlandi();
      return;
    }
    oturumYolu = yol;
    if (birakildi) {
      kapat();
      return;
    }
    basmayaAboneOl();
    GVariantBuilder ozellikler;
    g_variant_builder_init(&ozellikler, G_VARIANT_TYPE_VARDICT);
    g_variant_builder_add(&ozellikler, "{sv}", "description", g_variant_new_string(ACIKLAMA));
    g_variant_builder_add(&ozellikler, "{sv}", "preferred_trigger",
                          g_variant_new_string(tetik.c_str()));
    GVariantBuilder kisayollar;
    g_variant_builder_init(&kisayollar, G_VARIANT_TYPE("a(sa{sv})"));
    g_variant_builder_add(&kisayollar, "(sa{sv})", PORTAL_KISAYOL_KIMLIGI, &ozellikler);
    GVariantBuilder secenekler;
    g_variant_builder_init(&secenekler, G_VARIANT_TYPE_VARDICT);
    secenekEkle(&secenekler, "handle_token", jeton + "_b");
    istekle(jeton + "_b", "BindShortcuts",
            g_variant_new("(oa(sa{sv})sa{sv})", yol, &kisayollar, "", &secenekler),
            &Oturum::baglandi);
  }

  // The answer carries the shortcuts bound: ours must be among them, with a trigger.
  void baglandi(guint32 sonuc, GVariant* sonuclar) {
    aboneligiBitir(istekAboneligi);
    bagli = sonuc == 0 && !birakildi && bagliKisayolVar(sonuclar);
    bildir(bagli);
  }

  static bool bagliKisayolVar(GVariant* sonuclar) {
    GVariant* kisayollar =
        g_variant_lookup_value(sonuclar, "shortcuts", G_VARIANT_TYPE("a(sa{sv})"));
    if (kisayollar == nullptr) return false;
    Degisken tutucu(kisayollar);
    GVariantIter gezici;
    g_variant_iter_init(&gezici, kisayollar);
    const gchar* kimlik = nullptr;
    GVariant* ozellikler = nullptr;
    bool var = false;
    while (!var && g_variant_iter_next(&gezici, "(&s@a{sv})", &kimlik, &ozellikler)) {
      Degisken ozellik(ozellikler);
      const gchar* tetikYazisi = nullptr;
      var = std::string_view(kimlik) == PORTAL_KISAYOL_KIMLIGI &&
            (!g_variant_lookup(ozellikler, "trigger_description", "&s", &tetikYazisi) ||
             *tetikYazisi != 0);
    }
    return var;
  }

  void basmayaAboneOl() {
    basmaAboneligi = g_dbus_connection_signal_subscribe(
        baglanti.get(), PORTAL, KISAYOLLAR, "Activated", MASAUSTU_YOLU, nullptr,
        G_DBUS_SIGNAL_FLAGS_NONE,
        +[](GDBusConnection*, const gchar*, const gchar*, const gchar*, const gchar*,
            GVariant* parametreler, gpointer veri) {
          auto oturum = static_cast<Zayif*>(veri)->lock();
          if (!oturum || !g_variant_is_of_type(parametreler, G_VARIANT_TYPE("(osta{sv})"))) {
            return;
          }
          const gchar* yol = nullptr;
          const gchar* kimlik = nullptr;
          g_variant_get(parametreler, "(&o&st@a{sv})", &yol, &kimlik, nullptr, nullptr);
          oturum->basildiysa(yol, kimlik);
        },
        new Zayif(weak_from_this()), zayifBirak);
  }

  void basildiysa(const std::string& yol, const std::string& kimlik) const {
    if (!bagli || birakildi || yol != oturumYolu || kimlik != PORTAL_KISAYOL_KIMLIGI) return;
    if (auto islev = basildi.lock(); islev && *islev) (*islev)();
  }

  void birak() {
    birakildi = true;
    bagli = false;
    karar = nullptr;
    aboneligiBitir(basmaAboneligi);
    if (!oturumYolu.empty()) kapat();
  }

  void kapat() {
    g_dbus_connection_call(baglanti.get(), PORTAL, oturumYolu.c_str(), OTURUM, "Close", nullptr,
                           nullptr, G_DBUS_CALL_FLAGS_NONE, -1, nullptr, nullptr, nullptr);
    sonlandi();
  }
};

SicakTusPortal::SicakTusPortal(GDBusConnection* baglanti)
    : baglanti_(G_DBUS_CONNECTION(g_object_ref(baglanti))) {}

SicakTusPortal::~SicakTusPortal() {
  kaldir();
  bekleyenler_.clear();
}

// The press arrives as a signal on the main loop; the handler only hands it on.
void SicakTusPortal::isleyiciKur(std::function<void()> basildi) { *basildi_ = std::move(basildi); }

void SicakTusPortal::kaydet(std::uint32_t kod, std::uint32_t mod, Sonuc sonuc) {
  kaldir();
  auto tetik = portalTetigi(kod, mod);
  if (!tetik) {
    sonuc(false);
    return;
  }
  oturum_ = std::make_shared<Oturum>();
  oturum_->baglanti = GNesne<GDBusConnection>(G_DBUS_CONNECTION(g_object_ref(baglanti_.get())));
  oturum_->basildi = basildi_;
  oturum_->karar = std::move(sonuc);
  oturum_->tetik = std::move(*tetik);
  oturum_->jeton = "nevo_" + std::to_string(++sayac_);
  oturum_->baslat();
}

void SicakTusPortal::kaldir() {
  std::erase_if(bekleyenler_, [](const auto& oturum) { return oturum->bitti; });
  if (!oturum_) return;
  oturum_->birak();
  if (!oturum_->bitti) bekleyenler_.push_back(oturum_);
  oturum_.reset();
}

std::optional<std::string> portalTetigi(std::uint32_t kod, std::uint32_t mod) {
  const auto deger = tusDegeri(kod);
  if (!deger) return std::nullopt;
  const char* ad = gdk_keyval_name(*deger);
  if (ad == nullptr) return std::nullopt;
  const auto durum = gdkDurumu(mod);
  std::string tetik;
  if (durum & GDK_CONTROL_MASK) tetik += "CTRL+";
  if (durum & GDK_MOD1_MASK) tetik += "ALT+";
  if (durum & GDK_SHIFT_MASK) tetik += "SHIFT+";
  if (durum & GDK_SUPER_MASK) tetik += "LOGO+";
  return tetik + ad;
}

bool portalKisayollariVar(GDBusConnection* baglanti, int sinirMs) {
  GError* hata = nullptr;
  GVariant* yanit = g_dbus_connection_call_sync(
      baglanti, PORTAL, MASAUSTU_YOLU, "org.freedesktop.DBus.Properties", "Get",
      g_variant_new("(ss)", KISAYOLLAR, "version"), G_VARIANT_TYPE("(v)"), G_DBUS_CALL_FLAGS_NONE,
      sinirMs, nullptr, &hata);
  if (yanit == nullptr) {
    g_error_free(hata);
    return false;
  }
  g_variant_unref(yanit);
  return true;
}

std::unique_ptr<SicakTus> portalKisayoluOlustur() {
  GNesne<GDBusConnection> baglanti = sahiplen(g_bus_get_sync(G_BUS_TYPE_SESSION, nullptr, nullptr));
  // A portal that does not answer at once is taken as absent: the launch does not wait.
  constexpr int SINIR_MS = 1000;
  if (!baglanti || !portalKisayollariVar(baglanti.get(), SINIR_MS)) return nullptr;
  return std::make_unique<SicakTusPortal>(baglanti.get());
}

}  // namespace nevo
