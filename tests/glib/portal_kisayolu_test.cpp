// The hot key through the desktop portal's global shortcuts, against a stand-in portal on a
// private session bus. The stand-in runs on its own thread, so that a call the shell makes
// and waits for is answered while the test's loop stands still. A display gives the keyboard
// map in which triggers are named.
#include <gio/gio.h>
#include <gtest/gtest.h>
#include <gtk/gtk.h>

#include <condition_variable>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "desktop/kisayol/portal_kisayolu_gtk.hpp"
#include "desktop/kisayol/tus.hpp"
#include "dongu.hpp"
#include "temel/glib_gtk.hpp"
#include "veri_yolu.hpp"

namespace nevo {
namespace {

using test::bekle;

const bool EKRAN = g_setenv("NO_AT_BRIDGE", "1", TRUE) && gtk_init_check(nullptr, nullptr);

constexpr const char* PORTAL = "org.freedesktop.portal.Desktop";
constexpr const char* MASAUSTU_YOLU = "/org/freedesktop/portal/desktop";
constexpr const char* KISAYOLLAR = "org.freedesktop.portal.GlobalShortcuts";
constexpr const char* ISARET_ARAYUZU = "org.nevo.Deneme";

constexpr const char* TANIM = R"(<node>
  <interface name='org.freedesktop.portal.GlobalShortcuts'>
    <method name='CreateSession'>
      <arg type='a{sv}' direction='in'/><arg type='o' direction='out'/>
    </method>
    <method name='BindShortcuts'>
      <arg type='o' direction='in'/><arg type='a(sa{sv})' direction='in'/>
      <arg type='s' direction='in'/><arg type='a{sv}' direction='in'/>
      <arg type='o' direction='out'/>
    </method>
    <property name='version' type='u' access='read'/>
  </interface>
  <interface name='org.freedesktop.portal.Session'>
    <method name='Close'/>
  </interface>
</node>)";

enum class Tavir {
  yanitlar,       // answers every request at once
  sonraYanitlar,  // returns the request objects, answers them when the test says
  hicYanitsiz,    // takes every call and never answers
};

struct Baglama {
  std::string oturum;
  std::string kimlik;
  std::string tetik;
  std::string aciklama;
};

std::string secenek(GVariant* secenekler, const char* ad) {
  const gchar* deger = nullptr;
  return g_variant_lookup(secenekler, ad, "&s", &deger) ? deger : "";
}

// Just enough of the portal's global shortcuts: sessions, their binding and Close, each
// request answered on its Request object, and Activated when the test asks.
class SahtePortal {
 public:
  SahtePortal(std::string adres, Tavir tavir) : adres_(std::move(adres)), tavir_(tavir) {
    is_ = std::thread([this] { calis(); });
    std::unique_lock kilit(kilit_);
    hazirOldu_.wait(kilit, [this] { return hazir_; });
  }
  SahtePortal(const SahtePortal&) = delete;
  SahtePortal& operator=(const SahtePortal&) = delete;
  ~SahtePortal() {
    g_main_context_invoke(
        baglam_,
        +[](gpointer dongu) {
          g_main_loop_quit(static_cast<GMainLoop*>(dongu));
          return G_SOURCE_REMOVE;
        },
        dongu_);
    is_.join();
  }

  void baglamaYaniti(guint32 yanit) {
    std::lock_guard k(kilit_);
    baglamaYaniti_ = yanit;
  }
  // Answers a binding as accepted, but binds none of the shortcuts asked for.
  void hicBirKisayolBaglama() {
    std::lock_guard k(kilit_);
    hicBaglama_ = true;
  }
  std::vector<Baglama> baglamalar() {
    std::lock_guard k(kilit_);
    return baglamalar_;
  }
  std::vector<std::string> oturumlar() {
    std::lock_guard k(kilit_);
    return oturumlar_;
  }
  std::vector<std::string> kapananlar() {
    std::lock_guard k(kilit_);
    return kapananlar_;
  }

  // Answers the requests held back so far.
  void yanitla() {
    std::vector<std::pair<std::string, GVariant*>> yanitlar;
    {
      std::lock_guard k(kilit_);
      yanitlar.swap(bekleyenYanitlar_);
    }
    for (auto& [yol, yanit] : yanitlar) yanitGonder(yol, yanit);
  }

  void etkinlestir(const std::string& oturum, const char* kimlik) {
    g_dbus_connection_emit_signal(
        baglanti_, nullptr, MASAUSTU_YOLU, KISAYOLLAR, "Activated",
        g_variant_new("(osta{sv})", oturum.c_str(), kimlik, guint64{0}, nullptr), nullptr);
  }

  // A signal the test's own connection waits for: everything sent before it has arrived.
  void isaretGonder(guint sira) {
    g_dbus_connection_emit_signal(baglanti_, nullptr, "/isaret", ISARET_ARAYUZU, "Isaret",
                                  g_variant_new("(u)", sira), nullptr);
  }

 private:
  void calis() {
    baglam_ = g_main_context_new();
    g_main_context_push_thread_default(baglam_);
    dongu_ = g_main_loop_new(baglam_, FALSE);
    baglanti_ = test::veriYolunaBaglan(adres_);
    tanim_ = g_dbus_node_info_new_for_xml(TANIM, nullptr);
    kayit_ = g_dbus_connection_register_object(baglanti_, MASAUSTU_YOLU, tanim_->interfaces[0],
                                               &ISLEVLER, this, nullptr, nullptr);
    if (tavir_ == Tavir::hicYanitsiz) {
      g_dbus_connection_add_filter(baglanti_, &SahtePortal::yut, nullptr, nullptr);
    }
    GVariant* sonuc = g_dbus_connection_call_sync(
        baglanti_, "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
        "RequestName", g_variant_new("(su)", PORTAL, 4u), nullptr, G_DBUS_CALL_FLAGS_NONE, -1,
        nullptr, nullptr);
    if (sonuc != nullptr) g_variant_unref(sonuc);
    {
      std::lock_guard k(kilit_);
      hazir_ = true;
    }
    hazirOldu_.notify_all();
    g_main_loop_run(dongu_);
    for (auto& [yol, kimlik] : oturumKayitlari_) {
      g_dbus_connection_unregister_object(baglanti_, kimlik);
    }
    g_dbus_connection_unregister_object(baglanti_, kayit_);
    for (auto& [yol, yanit] : bekleyenYanitlar_) g_variant_unref(yanit);
    g_dbus_connection_close_sync(baglanti_, nullptr, nullptr);
    g_object_unref(baglanti_);
    g_dbus_node_info_unref(tanim_);
    g_main_loop_unref(dongu_);
    g_main_context_pop_thread_default(baglam_);
    g_main_context_unref(baglam_);
  }

  // The test's loop may be waiting for what was just recorded.
  static void uyandir() { g_main_context_wakeup(nullptr); }

  // Every call to the portal is taken and none answered.
  static GDBusMessage* yut(GDBusConnection*, GDBusMessage* ileti, gboolean gelen, gpointer) {
    if (!gelen || g_dbus_message_get_message_type(ileti) != G_DBUS_MESSAGE_TYPE_METHOD_CALL) {
      return ileti;
    }
    g_object_unref(ileti);
    return nullptr;
  }

  static std::string istekYolu(GDBusMethodInvocation* cagri, const std::string& jeton,
                               const char* tur) {
    std::string ad = g_dbus_method_invocation_get_sender(cagri) + 1;
    for (auto& c : ad) {
      if (c == '.') c = '_';
    }
    return std::string(MASAUSTU_YOLU) + "/" + tur + "/" + ad + "/" + jeton;
  }

  void yanitGonder(const std::string& yol, GVariant* yanit) {
    g_dbus_connection_emit_signal(baglanti_, nullptr, yol.c_str(), "org.freedesktop.portal.Request",
                                  "Response", yanit, nullptr);
  }

  void istekYanitla(GDBusMethodInvocation* cagri, const std::string& yol, GVariant* yanit) {
    g_variant_ref_sink(yanit);
    g_dbus_method_invocation_return_value(cagri, g_variant_new("(o)", yol.c_str()));
    if (tavir_ == Tavir::yanitlar) {
      yanitGonder(yol, yanit);
      g_variant_unref(yanit);
    } else {
      std::lock_guard k(kilit_);
      bekleyenYanitlar_.emplace_back(yol, yanit);
    }
  }

  void oturumAc(GDBusMethodInvocation* cagri, GVariant* parametreler) {
    GVariant* secenekler = g_variant_get_child_value(parametreler, 0);
    const auto istek = istekYolu(cagri, secenek(secenekler, "handle_token"), "request");
    const auto oturum = istekYolu(cagri, secenek(secenekler, "session_handle_token"), "session");
    g_variant_unref(secenekler);
    oturumKayitlari_.emplace_back(
        oturum, g_dbus_connection_register_object(baglanti_, oturum.c_str(), tanim_->interfaces[1],
                                                  &ISLEVLER, this, nullptr, nullptr));
    GVariantBuilder sonuclar;
    g_variant_builder_init(&sonuclar, G_VARIANT_TYPE_VARDICT);
    g_variant_builder_add(&sonuclar, "{sv}", "session_handle",
                          g_variant_new_string(oturum.c_str()));
    istekYanitla(cagri, istek, g_variant_new("(ua{sv})", 0u, &sonuclar));
    std::lock_guard k(kilit_);
    oturumlar_.push_back(oturum);
    uyandir();
  }

  void bagla(GDBusMethodInvocation* cagri, GVariant* parametreler) {
    const gchar* oturum = nullptr;
    GVariantIter* kisayollar = nullptr;
    const gchar* pencere = nullptr;
    GVariant* secenekler = nullptr;
    g_variant_get(parametreler, "(&oa(sa{sv})&s@a{sv})", &oturum, &kisayollar, &pencere,
                  &secenekler);
    std::vector<Baglama> yeni;
    const gchar* kimlik = nullptr;
    GVariant* ozellikler = nullptr;
    while (g_variant_iter_next(kisayollar, "(&s@a{sv})", &kimlik, &ozellikler)) {
      yeni.push_back({oturum, kimlik, secenek(ozellikler, "preferred_trigger"),
                      secenek(ozellikler, "description")});
      g_variant_unref(ozellikler);
    }
    g_variant_iter_free(kisayollar);
    const auto istek = istekYolu(cagri, secenek(secenekler, "handle_token"), "request");
    g_variant_unref(secenekler);
    guint32 yanit = 0;
    bool hicBaglama = false;
    {
      std::lock_guard k(kilit_);
      yanit = baglamaYaniti_;
      hicBaglama = hicBaglama_;
    }
    // The answer carries the shortcuts bound, each with the trigger the user accepted.
    GVariantBuilder baglananlar;
    g_variant_builder_init(&baglananlar, G_VARIANT_TYPE("a(sa{sv})"));
    for (const auto& b : yeni) {
      if (hicBaglama) break;
      GVariantBuilder o;
      g_variant_builder_init(&o, G_VARIANT_TYPE_VARDICT);
      g_variant_builder_add(&o, "{sv}", "description", g_variant_new_string(b.aciklama.c_str()));
      g_variant_builder_add(&o, "{sv}", "trigger_description",
                            g_variant_new_string(b.tetik.c_str()));
      g_variant_builder_add(&baglananlar, "(sa{sv})", b.kimlik.c_str(), &o);
    }
    GVariantBuilder sonuclar;
    g_variant_builder_init(&sonuclar, G_VARIANT_TYPE_VARDICT);
    g_variant_builder_add(&sonuclar, "{sv}", "shortcuts", g_variant_builder_end(&baglananlar));
    istekYanitla(cagri, istek, g_variant_new("(ua{sv})", yanit, &sonuclar));
    std::lock_guard k(kilit_);
    baglamalar_.insert(baglamalar_.end(), yeni.begin(), yeni.end());
    uyandir();
  }

  void kapat(GDBusMethodInvocation* cagri, const gchar* yol) {
    for (auto it = oturumKayitlari_.begin(); it != oturumKayitlari_.end(); ++it) {
      if (it->first != yol) continue;
      g_dbus_connection_unregister_object(baglanti_, it->second);
      oturumKayitlari_.erase(it);
      break;
    }
    g_dbus_method_invocation_return_value(cagri, nullptr);
    std::lock_guard k(kilit_);
    kapananlar_.emplace_back(yol);
    uyandir();
  }

  static void cagrildi(GDBusConnection*, const gchar*, const gchar* yol, const gchar*,
                       const gchar* yontem, GVariant* parametreler, GDBusMethodInvocation* cagri,
                       gpointer veri) {
    auto* portal = static_cast<SahtePortal*>(veri);
    const std::string ad = yontem;
    if (ad == "CreateSession") portal->oturumAc(cagri, parametreler);
    if (ad == "BindShortcuts") portal->bagla(cagri, parametreler);
    if (ad == "Close") portal->kapat(cagri, yol);
  }

  static GVariant* ozellik(GDBusConnection*, const gchar*, const gchar*, const gchar*, const gchar*,
                           GError**, gpointer) {
    return g_variant_new_uint32(1);
  }

  static constexpr GDBusInterfaceVTable ISLEVLER{
      &SahtePortal::cagrildi, &SahtePortal::ozellik, nullptr, {}};

  std::string adres_;
  Tavir tavir_;
  std::thread is_;
  GMainContext* baglam_ = nullptr;
  GMainLoop* dongu_ = nullptr;
  GDBusConnection* baglanti_ = nullptr;
  GDBusNodeInfo* tanim_ = nullptr;
  guint kayit_ = 0;
  std::vector<std::pair<std::string, guint>> oturumKayitlari_;  // the portal's thread only

  std::mutex kilit_;
  std::condition_variable hazirOldu_;
  bool hazir_ = false;
  guint32 baglamaYaniti_ = 0;
  bool hicBaglama_ = false;
  std::vector<Baglama> baglamalar_;
  std::vector<std::string> oturumlar_;
  std::vector<std::string> kapananlar_;
  std::vector<std::pair<std::string, GVariant*>> bekleyenYanitlar_;
};

struct PortalKisayolu : ::testing::Test {
  void SetUp() override {
    g_test_dbus_up(veriYolu.get());
    adres = g_test_dbus_get_bus_address(veriYolu.get());
    istemci = sahiplen(test::veriYolunaBaglan(adres));
    ASSERT_TRUE(istemci);
    isaretAboneligi = g_dbus_connection_signal_subscribe(
        istemci.get(), nullptr, ISARET_ARAYUZU, "Isaret", "/isaret", nullptr,
        G_DBUS_SIGNAL_FLAGS_NONE,
        +[](GDBusConnection*, const gchar*, const gchar*, const gchar*, const gchar*,
            GVariant* parametreler,
            gpointer veri) { g_variant_get(parametreler, "(u)", static_cast<guint*>(veri)); },
        &gelenIsaret, nullptr);
  }
  void TearDown() override {
    tus.reset();
    g_dbus_connection_signal_unsubscribe(istemci.get(), isaretAboneligi);
    g_dbus_connection_close_sync(istemci.get(), nullptr, nullptr);
    istemci.reset();
    portal.reset();
    while (g_main_context_pending(nullptr)) test::birTur();
    g_test_dbus_down(veriYolu.get());
  }

  void portalAc(Tavir tavir = Tavir::yanitlar) {
    portal = std::make_unique<SahtePortal>(adres, tavir);
  }
  void tusKur() {
    tus = std::make_unique<SicakTusPortal>(istemci.get());
    tus->isleyiciKur([this] { ++basim; });
  }
  // Registers; the verdict is kept when it comes.
  void kaydet(std::uint32_t kod, std::uint32_t mod) {
    karar.reset();
    tus->kaydet(kod, mod, [this](bool kabul) { karar = kabul; });
  }
  std::optional<bool> kararGelince() {
    EXPECT_TRUE(bekle([&] { return karar.has_value(); }));
    return karar;
  }
  // Returns once everything the portal sent before has reached this side.
  void esitle() {
    const guint sira = ++gonderilenIsaret;
    portal->isaretGonder(sira);
    ASSERT_TRUE(bekle([&] { return gelenIsaret == sira; }));
  }
  std::string baglananOturum() {
    EXPECT_TRUE(bekle([&] { return !portal->baglamalar().empty(); }));
    return portal->baglamalar().empty() ? "" : portal->baglamalar().back().oturum;
  }

  GNesne<GTestDBus> veriYolu = sahiplen(g_test_dbus_new(G_TEST_DBUS_NONE));
  std::string adres;
  GNesne<GDBusConnection> istemci;
  guint isaretAboneligi = 0;
  guint gelenIsaret = 0;
  guint gonderilenIsaret = 0;
  std::unique_ptr<SahtePortal> portal;
  std::unique_ptr<SicakTusPortal> tus;
  std::optional<bool> karar;
  int basim = 0;
};

constexpr auto CTRL_ALT = static_cast<std::uint32_t>(tusMaskesi::CONTROL | tusMaskesi::OPTION);

TEST(PortalTetigi, KayitliKisayolPortalinSozdizimiyleYazilir) {
  ASSERT_TRUE(EKRAN);
  EXPECT_EQ(portalTetigi(40, CTRL_ALT), "CTRL+ALT+k");
  EXPECT_EQ(portalTetigi(36, tusMaskesi::SHIFT | tusMaskesi::COMMAND), "SHIFT+LOGO+Return");
  EXPECT_EQ(portalTetigi(122, 0), "F1");
  EXPECT_EQ(portalTetigi(52, CTRL_ALT), std::nullopt);  // no shared key has code 52
}

TEST_F(PortalKisayolu, KisayollariSunanPortalBulunur) {
  portalAc();
  EXPECT_TRUE(portalKisayollariVar(istemci.get(), 5000));
}

TEST_F(PortalKisayolu, PortalOlmayanVeriYolundaKisayolYok) {
  EXPECT_FALSE(portalKisayollariVar(istemci.get(), 5000));
}

TEST_F(PortalKisayolu, YanitVermeyenPortalSureDoluncaYokSayilir) {
  portalAc(Tavir::hicYanitsiz);
  const auto once = g_get_monotonic_time();
  EXPECT_FALSE(portalKisayollariVar(istemci.get(), 300));
  EXPECT_LT(g_get_monotonic_time() - once, 5 * G_USEC_PER_SEC);
}

TEST_F(PortalKisayolu, BaglamaIstegiKisayolunTetiginiTasir) {
  portalAc();
  tusKur();
  kaydet(40, CTRL_ALT);
  EXPECT_EQ(kararGelince(), true);
  ASSERT_TRUE(bekle([&] { return !portal->baglamalar().empty(); }));
  const auto baglamalar = portal->baglamalar();
  ASSERT_EQ(baglamalar.size(), 1u);
  EXPECT_EQ(baglamalar[0].kimlik, PORTAL_KISAYOL_KIMLIGI);
  EXPECT_EQ(baglamalar[0].tetik, "CTRL+ALT+k");
  EXPECT_FALSE(baglamalar[0].aciklama.empty());
  EXPECT_EQ(baglamalar[0].oturum, portal->oturumlar().at(0));
}

TEST_F(PortalKisayolu, AdiOlmayanTusPortalaSorulmadanReddedilir) {
  portalAc();
  tusKur();
  kaydet(52, CTRL_ALT);
  EXPECT_EQ(karar, false);
  esitle();
  EXPECT_TRUE(portal->oturumlar().empty());
}

TEST_F(PortalKisayolu, YalnizKendiKimligininBasimiIletilir) {
  portalAc();
  tusKur();
  kaydet(40, CTRL_ALT);
  const auto oturum = baglananOturum();
  ASSERT_EQ(kararGelince(), true);
  portal->etkinlestir(oturum, PORTAL_KISAYOL_KIMLIGI);
  esitle();
  EXPECT_EQ(basim, 1);
  portal->etkinlestir(oturum, "baska-kisayol");
  portal->etkinlestir(oturum + "_baska", PORTAL_KISAYOL_KIMLIGI);
  esitle();
  EXPECT_EQ(basim, 1);
}

TEST_F(PortalKisayolu, ReddedilenBaglamaBasimVermez) {
  portalAc();
  portal->baglamaYaniti(2);
  tusKur();
  kaydet(40, CTRL_ALT);
  const auto oturum = baglananOturum();
  EXPECT_EQ(kararGelince(), false);
  portal->etkinlestir(oturum, PORTAL_KISAYOL_KIMLIGI);
  esitle();
  EXPECT_EQ(basim, 0);
}

TEST_F(PortalKisayolu, KisayoluBaglamayanYanitRetSayilir) {
  portalAc();
  portal->hicBirKisayolBaglama();
  tusKur();
  kaydet(40, CTRL_ALT);
  const auto oturum = baglananOturum();
  EXPECT_EQ(kararGelince(), false);
  portal->etkinlestir(oturum, PORTAL_KISAYOL_KIMLIGI);
  esitle();
  EXPECT_EQ(basim, 0);
}

TEST_F(PortalKisayolu, KararPortalinBaglamaYanitiylaGelir) {
  portalAc(Tavir::sonraYanitlar);
  tusKur();
  kaydet(40, CTRL_ALT);
  ASSERT_TRUE(bekle([&] { return !portal->oturumlar().empty(); }));
  esitle();
  EXPECT_EQ(karar, std::nullopt);
  portal->yanitla();  // the session: the binding is asked for
  ASSERT_TRUE(bekle([&] { return !portal->baglamalar().empty(); }));
  esitle();
  EXPECT_EQ(karar, std::nullopt);
  portal->yanitla();  // the binding
  EXPECT_EQ(kararGelince(), true);
}

TEST_F(PortalKisayolu, KaldirOturumuKapatirVeBasimlarBiter) {
  portalAc();
  tusKur();
  kaydet(40, CTRL_ALT);
  const auto oturum = baglananOturum();
  esitle();
  tus->kaldir();
  ASSERT_TRUE(bekle([&] { return !portal->kapananlar().empty(); }));
  EXPECT_EQ(portal->kapananlar(), std::vector<std::string>{oturum});
  portal->etkinlestir(oturum, PORTAL_KISAYOL_KIMLIGI);
  esitle();
  EXPECT_EQ(basim, 0);
}

TEST_F(PortalKisayolu, YeniKayitEskiOturumuKapatir) {
  portalAc();
  tusKur();
  kaydet(40, CTRL_ALT);
  const auto eski = baglananOturum();
  kaydet(36, tusMaskesi::SHIFT);
  ASSERT_TRUE(bekle([&] { return portal->baglamalar().size() == 2; }));
  const auto yeni = portal->baglamalar().back();
  EXPECT_EQ(yeni.tetik, "SHIFT+Return");
  EXPECT_NE(yeni.oturum, eski);
  EXPECT_EQ(portal->kapananlar(), std::vector<std::string>{eski});
  EXPECT_EQ(kararGelince(), true);
  esitle();
  portal->etkinlestir(eski, PORTAL_KISAYOL_KIMLIGI);
  portal->etkinlestir(yeni.oturum, PORTAL_KISAYOL_KIMLIGI);
  esitle();
  EXPECT_EQ(basim, 1);
}

TEST_F(PortalKisayolu, OturumGelmedenKaldirilanKayitGelinceKapanir) {
  portalAc(Tavir::sonraYanitlar);
  tusKur();
  kaydet(40, CTRL_ALT);
  ASSERT_TRUE(bekle([&] { return !portal->oturumlar().empty(); }));
  tus->kaldir();
  portal->yanitla();
  ASSERT_TRUE(bekle([&] { return !portal->kapananlar().empty(); }));
  EXPECT_EQ(portal->kapananlar(), portal->oturumlar());
  EXPECT_TRUE(portal->baglamalar().empty());
  EXPECT_EQ(karar, std::nullopt);  // a released registration has no verdict
}

TEST_F(PortalKisayolu, YanitVermeyenPortalDonguyuTutmaz) {
  portalAc(Tavir::hicYanitsiz);
  tusKur();
  const auto once = g_get_monotonic_time();
  kaydet(40, CTRL_ALT);
  bool dondu = false;
  g_idle_add(
      +[](gpointer veri) {
        *static_cast<bool*>(veri) = true;
        return G_SOURCE_REMOVE;
      },
      &dondu);
  EXPECT_TRUE(bekle([&] { return dondu; }));
  EXPECT_EQ(karar, std::nullopt);
  tus->kaldir();
  EXPECT_LT(g_get_monotonic_time() - once, 5 * G_USEC_PER_SEC);
}

}  // namespace
}  // namespace nevo
