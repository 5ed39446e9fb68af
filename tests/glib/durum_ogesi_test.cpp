// The menu-bar item on a private session bus, read and driven as a status-notifier host
// does: the item's properties and signals, its registration with watchers, and its menu.
#include <gio/gio.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "desktop/durum_ogesi_gtk.hpp"
#include "desktop/menu_cubugu.hpp"
#include "dongu.hpp"
#include "temel/glib_gtk.hpp"
#include "temel/kaynaklar.hpp"
#include "veri_yolu.hpp"
#include "yapilandirma.hpp"

namespace nevo {
namespace {

using test::bekle;
using test::veriYolunaBaglan;

constexpr const char* IZLEYICI = "org.kde.StatusNotifierWatcher";
constexpr const char* SNI = "org.kde.StatusNotifierItem";
constexpr const char* MENU = "com.canonical.dbusmenu";
constexpr const char* OZELLIKLER = "org.freedesktop.DBus.Properties";
const gchar* const HICBIRI[] = {nullptr};  // an empty list of names

constexpr const char* IZLEYICI_TANIMI = R"(<node>
  <interface name='org.kde.StatusNotifierWatcher'>
    <method name='RegisterStatusNotifierItem'><arg type='s' direction='in'/></method>
  </interface>
</node>)";

// A StatusNotifierWatcher on its own connection: it records who registered which item.
class SahteIzleyici {
 public:
  struct Kayit {
    std::string gonderen;
    std::string oge;
  };

  explicit SahteIzleyici(const std::string& adres) : hat_(sahiplen(veriYolunaBaglan(adres))) {
    static GDBusNodeInfo* const tanim = g_dbus_node_info_new_for_xml(IZLEYICI_TANIMI, nullptr);
    static const GDBusInterfaceVTable tablo{
        +[](GDBusConnection*, const gchar* gonderen, const gchar*, const gchar*, const gchar*,
            GVariant* argumanlar, GDBusMethodInvocation* cagri, gpointer veri) {
          const gchar* oge = nullptr;
          g_variant_get(argumanlar, "(&s)", &oge);
          static_cast<SahteIzleyici*>(veri)->kayitlar.push_back({gonderen, oge});
          g_dbus_method_invocation_return_value(cagri, nullptr);
        },
        nullptr,
        nullptr,
        {}};
    kayit_ = g_dbus_connection_register_object(
        hat_.get(), "/StatusNotifierWatcher", tanim->interfaces[0], &tablo, this, nullptr, nullptr);
    Degisken ad(g_dbus_connection_call_sync(
        hat_.get(), "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
        "RequestName", g_variant_new("(su)", IZLEYICI, 4u), G_VARIANT_TYPE("(u)"),
        G_DBUS_CALL_FLAGS_NONE, -1, nullptr, nullptr));
  }
  SahteIzleyici(const SahteIzleyici&) = delete;
  SahteIzleyici& operator=(const SahteIzleyici&) = delete;
  ~SahteIzleyici() {
    g_dbus_connection_unregister_object(hat_.get(), kayit_);
    g_dbus_connection_close_sync(hat_.get(), nullptr, nullptr);
  }

  std::vector<Kayit> kayitlar;

 private:
  GNesne<GDBusConnection> hat_;
  guint kayit_ = 0;
};

// The answer of a call made without stopping the loop that the item answers from.
struct Cevap {
  Degisken degerler;
  std::string hata;
};

struct DurumOgesiTesti : ::testing::Test {
  void SetUp() override {
    g_test_dbus_up(veriYolu.get());
    adres = g_test_dbus_get_bus_address(veriYolu.get());
    ogeHatti = sahiplen(veriYolunaBaglan(adres));
    istemci = sahiplen(veriYolunaBaglan(adres));
    ASSERT_TRUE(ogeHatti && istemci);
    abonelik = g_dbus_connection_signal_subscribe(
        istemci.get(), g_dbus_connection_get_unique_name(ogeHatti.get()), nullptr, nullptr, nullptr,
        nullptr, G_DBUS_SIGNAL_FLAGS_NONE,
        +[](GDBusConnection*, const gchar*, const gchar*, const gchar*, const gchar* sinyal,
            GVariant* parametreler, gpointer veri) {
          std::string kayit = sinyal;
          if (g_variant_is_of_type(parametreler, G_VARIANT_TYPE("(s)"))) {
            const gchar* durum = nullptr;
            g_variant_get(parametreler, "(&s)", &durum);
            kayit += std::string(" ") + durum;
          } else if (g_variant_is_of_type(parametreler, G_VARIANT_TYPE("(ui)"))) {
            guint32 surum = 0;
            g_variant_get(parametreler, "(ui)", &surum, nullptr);
            kayit += " " + std::to_string(surum);
          }
          static_cast<std::vector<std::string>*>(veri)->push_back(kayit);
        },
        &sinyaller, nullptr);
    oge = std::make_unique<DurumOgesiGtk>(ogeHatti.get(), kaynakYolu(SIMGE_DOSYASI));
  }

  void TearDown() override {
    oge.reset();
    izleyici.reset();
    g_dbus_connection_signal_unsubscribe(istemci.get(), abonelik);
    for (auto* hat : {istemci.get(), ogeHatti.get()}) {
      g_dbus_connection_close_sync(hat, nullptr, nullptr);
    }
    istemci.reset();
    ogeHatti.reset();
    while (g_main_context_pending(nullptr)) test::birTur();
    g_test_dbus_down(veriYolu.get());
  }

  Cevap cagir(const char* yol, const char* arayuz, const char* yontem, GVariant* argumanlar) {
    struct Bekleyen {
      bool geldi = false;
      Cevap cevap;
    } bekleyen;
    g_dbus_connection_call(
        istemci.get(), g_dbus_connection_get_unique_name(ogeHatti.get()), yol, arayuz, yontem,
        argumanlar, nullptr, G_DBUS_CALL_FLAGS_NONE, -1, nullptr,
        +[](GObject* hat, GAsyncResult* sonuc, gpointer veri) {
          auto* b = static_cast<Bekleyen*>(veri);
          GError* hata = nullptr;
          b->cevap.degerler.reset(
              g_dbus_connection_call_finish(G_DBUS_CONNECTION(hat), sonuc, &hata));
          if (hata != nullptr) {
            b->cevap.hata = hata->message;
            g_error_free(hata);
          }
          b->geldi = true;
        },
        &bekleyen);
    EXPECT_TRUE(bekle([&] { return bekleyen.geldi; }));
    return std::move(bekleyen.cevap);
  }

  Cevap menuCagir(const char* yontem, GVariant* argumanlar) {
    return cagir(DurumOgesiGtk::MENU_YOLU, MENU, yontem, argumanlar);
  }

  // The item's property `ad`, or null when it cannot be read.
  Degisken ozellik(const char* ad) {
    Cevap cevap = cagir(DurumOgesiGtk::YOL, OZELLIKLER, "Get", g_variant_new("(ss)", SNI, ad));
    if (!cevap.degerler) return nullptr;
    return Degisken(g_variant_get_child_value(
        Degisken(g_variant_get_child_value(cevap.degerler.get(), 0)).get(), 0));
  }

  std::string metin(const char* ad) {
    Degisken deger = ozellik(ad);
    return deger ? g_variant_get_string(deger.get(), nullptr) : "<yok>";
  }

  // The title of the item's tool-tip (icon, image, title, text).
  std::string ipucuBasligi() {
    Degisken ipucu = ozellik("ToolTip");
    if (!ipucu) return "<yok>";
    const gchar* baslik = nullptr;
    g_variant_get_child(ipucu.get(), 2, "&s", &baslik);
    return baslik;
  }

  void goster(std::vector<MenuCubuguGirdisi> girdiler = menuCubuguTasarimi().girdiler) {
    DurumOgesiTasarimi tasarim = menuCubuguTasarimi();
    tasarim.girdiler = std::move(girdiler);
    oge->goster(tasarim, [this](const std::string& kimlik) { secilenler.push_back(kimlik); });
  }

  void izleyiciBaslat() { izleyici = std::make_unique<SahteIzleyici>(adres); }

  // The menu's root as GetLayout returns it for `ust`, `derinlik` and `adlar`.
  Cevap yerlesim(gint32 ust, gint32 derinlik, std::vector<const char*> adlar = {}) {
    adlar.push_back(nullptr);
    return menuCagir("GetLayout", g_variant_new("(ii^as)", ust, derinlik, adlar.data()));
  }

  GNesne<GTestDBus> veriYolu = sahiplen(g_test_dbus_new(G_TEST_DBUS_NONE));
  std::string adres;
  GNesne<GDBusConnection> ogeHatti;
  GNesne<GDBusConnection> istemci;
  guint abonelik = 0;
  std::vector<std::string> sinyaller;
  std::vector<std::string> secilenler;
  std::unique_ptr<SahteIzleyici> izleyici;
  std::unique_ptr<DurumOgesiGtk> oge;
};

// (id, properties, children) of one layout node.
struct Dugum {
  gint32 kimlik = 0;
  Degisken ozellikler;
  Degisken cocuklar;
};

Dugum dugumAc(GVariant* dugum) {
  Dugum d;
  GVariant* ozellikler = nullptr;
  GVariant* cocuklar = nullptr;
  g_variant_get(dugum, "(i@a{sv}@av)", &d.kimlik, &ozellikler, &cocuklar);
  d.ozellikler.reset(ozellikler);
  d.cocuklar.reset(cocuklar);
  return d;
}

Dugum kok(const Cevap& cevap) {
  return dugumAc(Degisken(g_variant_get_child_value(cevap.degerler.get(), 1)).get());
}

Dugum cocuk(const Dugum& ust, gsize sira) {
  Degisken kutu(g_variant_get_child_value(ust.cocuklar.get(), sira));
  return dugumAc(Degisken(g_variant_get_variant(kutu.get())).get());
}

std::string ozellikMetni(const Dugum& d, const char* ad) {
  const gchar* deger = nullptr;
  return g_variant_lookup(d.ozellikler.get(), ad, "&s", &deger) ? deger : "<yok>";
}

TEST_F(DurumOgesiTesti, GosterilmedenBusteHicbirSeyYok) {
  izleyiciBaslat();
  EXPECT_FALSE(ozellik("Status"));
  EXPECT_FALSE(menuCagir("GetLayout", g_variant_new("(ii^as)", 0, -1, HICBIRI)).degerler);
  EXPECT_TRUE(izleyici->kayitlar.empty());
}

TEST_F(DurumOgesiTesti, GosterilinceIzleyiciyeKendiAdiylaKaydolurVeEtkinOlur) {
  izleyiciBaslat();
  goster();
  ASSERT_TRUE(bekle([&] { return !izleyici->kayitlar.empty(); }));
  EXPECT_EQ(izleyici->kayitlar[0].oge, DurumOgesiGtk::YOL);
  EXPECT_EQ(izleyici->kayitlar[0].gonderen, g_dbus_connection_get_unique_name(ogeHatti.get()));
  EXPECT_EQ(metin("Status"), "Active");
  EXPECT_EQ(metin("Title"), "Nevo");
  EXPECT_EQ(metin("Id"), yapilandirma::UYGULAMA_KIMLIGI);
  EXPECT_EQ(metin("Category"), "ApplicationStatus");
  Degisken menu = ozellik("Menu");
  ASSERT_TRUE(menu);
  EXPECT_STREQ(g_variant_get_string(menu.get(), nullptr), DurumOgesiGtk::MENU_YOLU);
  Degisken menuMu = ozellik("ItemIsMenu");
  ASSERT_TRUE(menuMu);
  EXPECT_TRUE(g_variant_get_boolean(menuMu.get()));
  EXPECT_EQ(ipucuBasligi(), "Nevo");
  ASSERT_TRUE(bekle([&] { return sinyaller.size() == 4; }));
  EXPECT_EQ(sinyaller, (std::vector<std::string>{"NewTitle", "NewToolTip", "LayoutUpdated 1",
                                                 "NewStatus Active"}));
}

// The build puts the icon in share/nevo beside the programs, where the shell looks for it.
TEST_F(DurumOgesiTesti, SimgesiniAdiVeDiziniyleVerirBasHarfiGostermez) {
  goster();
  EXPECT_EQ(metin("IconName"), "AppIcon");
  const std::string dizin = metin("IconThemePath");
  EXPECT_TRUE(g_str_has_suffix(dizin.c_str(), "/share/nevo")) << dizin;
  EXPECT_EQ(metin("XAyatanaLabel"), "");
}

TEST_F(DurumOgesiTesti, SimgesizOgeBasHarfiniVeIpucuOlarakNevoyuVerir) {
  oge = std::make_unique<DurumOgesiGtk>(ogeHatti.get(), std::nullopt);
  goster();
  EXPECT_EQ(metin("IconName"), "");
  EXPECT_EQ(metin("XAyatanaLabel"), "N");
  EXPECT_EQ(ipucuBasligi(), "Nevo");
}

TEST_F(DurumOgesiTesti, SonradanGelenVeYenidenGelenIzleyiciyeKaydolur) {
  goster();
  EXPECT_EQ(metin("Status"), "Active");
  izleyiciBaslat();
  ASSERT_TRUE(bekle([&] { return izleyici->kayitlar.size() == 1; }));
  izleyici.reset();
  izleyiciBaslat();
  ASSERT_TRUE(bekle([&] { return izleyici->kayitlar.size() == 1; }));
  EXPECT_EQ(izleyici->kayitlar[0].oge, DurumOgesiGtk::YOL);
}

TEST_F(DurumOgesiTesti, GizleninceEdilginOlurMenusuSusarYenidenGosterilinceTazeMenuyleDoner) {
  goster();
  oge->kaldir();
  EXPECT_EQ(metin("Status"), "Passive");
  EXPECT_TRUE(menuCagir("Event", g_variant_new("(isvu)", 2, "clicked", g_variant_new_int32(0), 0u))
                  .degerler);
  EXPECT_TRUE(secilenler.empty());

  goster({{"Başka", "baska"}});
  EXPECT_EQ(metin("Status"), "Active");
  Cevap cevap = yerlesim(0, -1);
  ASSERT_TRUE(cevap.degerler);
  guint32 surum = 0;
  g_variant_get_child(cevap.degerler.get(), 0, "u", &surum);
  EXPECT_EQ(surum, 2u);
  EXPECT_EQ(ozellikMetni(cocuk(kok(cevap), 0), "label"), "Başka");
  menuCagir("Event", g_variant_new("(isvu)", 1, "clicked", g_variant_new_int32(0), 0u));
  EXPECT_EQ(secilenler, std::vector<std::string>{"baska"});
  ASSERT_TRUE(bekle([&] { return sinyaller.size() == 7; }));
  EXPECT_EQ(sinyaller, (std::vector<std::string>{"NewTitle", "NewToolTip", "LayoutUpdated 1",
                                                 "NewStatus Active", "NewStatus Passive",
                                                 "LayoutUpdated 2", "NewStatus Active"}));
}

TEST_F(DurumOgesiTesti, MenuYerlesimiGirdileriVeAyiraclariSirasiylaVerir) {
  goster();
  Cevap cevap = yerlesim(0, -1);
  ASSERT_TRUE(cevap.degerler) << cevap.hata;
  const Dugum ana = kok(cevap);
  EXPECT_EQ(ana.kimlik, 0);
  EXPECT_EQ(ozellikMetni(ana, "children-display"), "submenu");
  const auto& girdiler = menuCubuguTasarimi().girdiler;
  ASSERT_EQ(g_variant_n_children(ana.cocuklar.get()), girdiler.size());
  for (gsize i = 0; i < girdiler.size(); ++i) {
    const Dugum d = cocuk(ana, i);
    EXPECT_EQ(d.kimlik, static_cast<gint32>(i + 1));
    if (girdiler[i].kimlik.empty()) {
      EXPECT_EQ(ozellikMetni(d, "type"), "separator");
      EXPECT_EQ(ozellikMetni(d, "label"), "<yok>");
    } else {
      EXPECT_EQ(ozellikMetni(d, "label"), girdiler[i].baslik);
      EXPECT_EQ(ozellikMetni(d, "type"), "<yok>");
    }
  }
}

TEST_F(DurumOgesiTesti, MenuYerlesimiDerinlikUstVeOzellikAdlarinaUyar) {
  goster();
  EXPECT_EQ(g_variant_n_children(kok(yerlesim(0, 0)).cocuklar.get()), 0u);
  const Dugum ikinci = kok(yerlesim(2, -1));
  EXPECT_EQ(ikinci.kimlik, 2);
  EXPECT_EQ(ozellikMetni(ikinci, "label"), "Yeni sohbet");
  EXPECT_EQ(g_variant_n_children(ikinci.cocuklar.get()), 0u);
  EXPECT_EQ(g_variant_n_children(kok(yerlesim(0, G_MININT32)).cocuklar.get()),
            menuCubuguTasarimi().girdiler.size());
  EXPECT_FALSE(yerlesim(99, -1).degerler);
  EXPECT_FALSE(yerlesim(-1, -1).degerler);

  const Dugum yalnizEtiket = kok(yerlesim(0, -1, {"label"}));
  EXPECT_EQ(g_variant_n_children(yalnizEtiket.ozellikler.get()), 0u);
  const Dugum ilk = cocuk(yalnizEtiket, 0);
  EXPECT_EQ(g_variant_n_children(ilk.ozellikler.get()), 1u);
  EXPECT_EQ(ozellikMetni(ilk, "label"), "Nevo'yi Aç");
}

TEST_F(DurumOgesiTesti, EtiketteAltCizgiIkiKezYazilir) {
  goster({{"a_b", "x"}});
  EXPECT_EQ(ozellikMetni(cocuk(kok(yerlesim(0, -1)), 0), "label"), "a__b");
}

TEST_F(DurumOgesiTesti, YalnizBirGirdiyeTiklamakOnuSecer) {
  goster();
  auto olay = [&](gint32 kimlik, const char* ad) {
    return menuCagir("Event", g_variant_new("(isvu)", kimlik, ad, g_variant_new_int32(0), 0u));
  };
  EXPECT_TRUE(olay(2, "clicked").degerler);
  EXPECT_TRUE(olay(4, "clicked").degerler);  // a separator
  EXPECT_TRUE(olay(0, "clicked").degerler);  // the root
  EXPECT_TRUE(olay(3, "hovered").degerler);
  EXPECT_FALSE(olay(99, "clicked").degerler);
  EXPECT_EQ(secilenler, std::vector<std::string>{"yeni-sohbet"});
}

TEST_F(DurumOgesiTesti, TopluOlaylarBilinmeyenGirdileriBildirir) {
  goster();
  GVariantBuilder olaylar;
  g_variant_builder_init(&olaylar, G_VARIANT_TYPE("a(isvu)"));
  for (gint32 kimlik : {1, 99, 3}) {
    g_variant_builder_add(&olaylar, "(isvu)", kimlik, "clicked", g_variant_new_int32(0), 0u);
  }
  Cevap cevap = menuCagir("EventGroup", g_variant_new("(a(isvu))", &olaylar));
  ASSERT_TRUE(cevap.degerler) << cevap.hata;
  Degisken hatalar(g_variant_get_child_value(cevap.degerler.get(), 0));
  ASSERT_EQ(g_variant_n_children(hatalar.get()), 1u);
  gint32 hatali = 0;
  g_variant_get_child(hatalar.get(), 0, "i", &hatali);
  EXPECT_EQ(hatali, 99);
  EXPECT_EQ(secilenler, (std::vector<std::string>{"ac", "nevo-code"}));
}

TEST_F(DurumOgesiTesti, OzellikSorgulariBilinenGirdileriYanitlar) {
  goster();
  const gint32 istenen[] = {1, 99};
  Cevap toplu = menuCagir(
      "GetGroupProperties",
      g_variant_new("(@ai^as)",
                    g_variant_new_fixed_array(G_VARIANT_TYPE_INT32, istenen, 2, sizeof(gint32)),
                    HICBIRI));
  ASSERT_TRUE(toplu.degerler) << toplu.hata;
  Degisken liste(g_variant_get_child_value(toplu.degerler.get(), 0));
  ASSERT_EQ(g_variant_n_children(liste.get()), 1u);
  Cevap hepsi = menuCagir(
      "GetGroupProperties",
      g_variant_new("(@ai^as)", g_variant_new_array(G_VARIANT_TYPE_INT32, nullptr, 0), HICBIRI));
  ASSERT_TRUE(hepsi.degerler);
  Degisken tumu(g_variant_get_child_value(hepsi.degerler.get(), 0));
  EXPECT_EQ(g_variant_n_children(tumu.get()), menuCubuguTasarimi().girdiler.size() + 1);

  Cevap etiket = menuCagir("GetProperty", g_variant_new("(is)", 1, "label"));
  ASSERT_TRUE(etiket.degerler) << etiket.hata;
  Degisken deger(g_variant_get_child_value(etiket.degerler.get(), 0));
  Degisken ic(g_variant_get_variant(deger.get()));
  EXPECT_STREQ(g_variant_get_string(ic.get(), nullptr), "Nevo'yi Aç");
  EXPECT_FALSE(menuCagir("GetProperty", g_variant_new("(is)", 1, "yok")).degerler);
  EXPECT_FALSE(menuCagir("GetProperty", g_variant_new("(is)", 99, "label")).degerler);

  Cevap goster1 = menuCagir("AboutToShow", g_variant_new("(i)", 1));
  ASSERT_TRUE(goster1.degerler);
  gboolean gerek = TRUE;
  g_variant_get(goster1.degerler.get(), "(b)", &gerek);
  EXPECT_FALSE(gerek);
  EXPECT_FALSE(menuCagir("AboutToShow", g_variant_new("(i)", 99)).degerler);
  Cevap grup = menuCagir(
      "AboutToShowGroup",
      g_variant_new("(@ai)",
                    g_variant_new_fixed_array(G_VARIANT_TYPE_INT32, istenen, 2, sizeof(gint32))));
  ASSERT_TRUE(grup.degerler) << grup.hata;
  Degisken guncel(g_variant_get_child_value(grup.degerler.get(), 0));
  Degisken bilinmeyen(g_variant_get_child_value(grup.degerler.get(), 1));
  EXPECT_EQ(g_variant_n_children(guncel.get()), 0u);
  ASSERT_EQ(g_variant_n_children(bilinmeyen.get()), 1u);

  Cevap surum =
      cagir(DurumOgesiGtk::MENU_YOLU, OZELLIKLER, "Get", g_variant_new("(ss)", MENU, "Version"));
  ASSERT_TRUE(surum.degerler) << surum.hata;
  Degisken s(g_variant_get_child_value(surum.degerler.get(), 0));
  Degisken sayi(g_variant_get_variant(s.get()));
  EXPECT_EQ(g_variant_get_uint32(sayi.get()), 3u);
}

TEST_F(DurumOgesiTesti, YokEdilinceOgeVeMenusuBustenKalkar) {
  goster();
  EXPECT_EQ(metin("Status"), "Active");
  oge.reset();
  EXPECT_FALSE(ozellik("Status"));
  EXPECT_FALSE(yerlesim(0, -1).degerler);
  ASSERT_TRUE(bekle([&] { return sinyaller.size() == 5; }));
  EXPECT_EQ(sinyaller.back(), "NewStatus Passive");
}

}  // namespace
}  // namespace nevo
