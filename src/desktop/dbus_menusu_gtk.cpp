#include "desktop/dbus_menusu_gtk.hpp"

#include <cstdint>
#include <functional>
#include <span>
#include <string_view>
#include <utility>

#include "temel/dbus_nesnesi_gtk.hpp"

namespace nevo {
namespace {

constexpr const char* ARAYUZ = "com.canonical.dbusmenu";
constexpr const char* TANIM = R"(<node>
  <interface name='com.canonical.dbusmenu'>
    <method name='GetLayout'>
      <arg type='i' name='parentId' direction='in'/>
      <arg type='i' name='recursionDepth' direction='in'/>
      <arg type='as' name='propertyNames' direction='in'/>
      <arg type='u' name='revision' direction='out'/>
      <arg type='(ia{sv}av)' name='layout' direction='out'/>
    </method>
    <method name='GetGroupProperties'>
      <arg type='ai' name='ids' direction='in'/>
      <arg type='as' name='propertyNames' direction='in'/>
      <arg type='a(ia{sv})' name='properties' direction='out'/>
    </method>
    <method name='GetProperty'>
      <arg type='i' name='id' direction='in'/>
      <arg type='s' name='name' direction='in'/>
      <arg type='v' name='value' direction='out'/>
    </method>
    <method name='Event'>
      <arg type='i' name='id' direction='in'/>
      <arg type='s' name='eventId' direction='in'/>
      <arg type='v' name='data' direction='in'/>
      <arg type='u' name='timestamp' direction='in'/>
    </method>
    <method name='EventGroup'>
      <arg type='a(isvu)' name='events' direction='in'/>
      <arg type='ai' name='idErrors' direction='out'/>
    </method>
    <method name='AboutToShow'>
      <arg type='i' name='id' direction='in'/>
      <arg type='b' name='needUpdate' direction='out'/>
    </method>
    <method name='AboutToShowGroup'>
      <arg type='ai' name='ids' direction='in'/>
      <arg type='ai' name='updatesNeeded' direction='out'/>
      <arg type='ai' name='idErrors' direction='out'/>
    </method>
    <signal name='ItemsPropertiesUpdated'>
      <arg type='a(ia{sv})' name='updatedProps'/>
      <arg type='a(ias)' name='removedProps'/>
    </signal>
    <signal name='LayoutUpdated'>
      <arg type='u' name='revision'/>
      <arg type='i' name='parent'/>
    </signal>
    <signal name='ItemActivationRequested'>
      <arg type='i' name='id'/>
      <arg type='u' name='timestamp'/>
    </signal>
    <property name='Version' type='u' access='read'/>
    <property name='TextDirection' type='s' access='read'/>
    <property name='Status' type='s' access='read'/>
    <property name='IconThemePath' type='as' access='read'/>
  </interface>
</node>)";

constexpr const char* BILINMEYEN = "no such menu item";

// In a host's menu an underscore marks the access key: a written one is doubled.
std::string etiket(std::string_view baslik) {
  std::string sonuc;
  for (char c : baslik) {
    if (c == '_') sonuc += '_';
    sonuc += c;
  }
  return sonuc;
}

// Whether property `ad` is asked for: an empty list asks for all.
bool istendi(GVariant* adlar, std::string_view ad) {
  if (adlar == nullptr) return true;
  const gsize sayi = g_variant_n_children(adlar);
  for (gsize i = 0; i < sayi; ++i) {
    const gchar* istenen = nullptr;
    g_variant_get_child(adlar, i, "&s", &istenen);
    if (ad == istenen) return true;
  }
  return sayi == 0;
}

// The items of an array of ids ("ai"), valid while the array lives.
std::span<const gint32> kimlikDizisi(GVariant* dizi) {
  gsize sayi = 0;
  const auto* ilk =
      static_cast<const gint32*>(g_variant_get_fixed_array(dizi, &sayi, sizeof(gint32)));
  return {ilk, sayi};
}

}  // namespace

struct DbusMenusu::Nesne final : DbusNesnesi {
  std::vector<MenuCubuguGirdisi> girdiler;
  std::function<void(const std::string&)> secildi;
  std::uint32_t surum = 0;

  bool var(gint32 kimlik) const {
    return kimlik >= 0 && static_cast<std::size_t>(kimlik) <= girdiler.size();
  }

  GVariant* ozellikleri(gint32 kimlik, GVariant* adlar) const {
    GVariantBuilder b;
    g_variant_builder_init(&b, G_VARIANT_TYPE_VARDICT);
    auto ekle = [&](const char* ad, auto&& deger) {
      if (istendi(adlar, ad)) g_variant_builder_add(&b, "{sv}", ad, deger());
    };
    if (kimlik == 0) {
      ekle("children-display", [] { return g_variant_new_string("submenu"); });
    } else if (const auto& girdi = girdiler[static_cast<std::size_t>(kimlik) - 1];
               girdi.kimlik.empty()) {
      ekle("type", [] { return g_variant_new_string("separator"); });
    } else {
      ekle("label", [&] { return g_variant_new_string(etiket(girdi.baslik).c_str()); });
      ekle("enabled", [] { return g_variant_new_boolean(TRUE); });
    }
    ekle("visible", [] { return g_variant_new_boolean(TRUE); });
    return g_variant_builder_end(&b);
  }

  // Item `kimlik` with its children down to `derinlik` levels (all of them when negative).
  GVariant* dugum(gint32 kimlik, gint32 derinlik, GVariant* adlar) const {
    GVariantBuilder cocuklar;
    g_variant_builder_init(&cocuklar, G_VARIANT_TYPE("av"));
    if (kimlik == 0 && derinlik != 0) {
      const gint32 altDerinlik = derinlik > 0 ? derinlik - 1 : derinlik;
      for (gint32 i = 1; var(i); ++i) {
        g_variant_builder_add(&cocuklar, "v", dugum(i, altDerinlik, adlar));
      }
    }
    return g_variant_new("(i@a{sv}av)", kimlik, ozellikleri(kimlik, adlar), &cocuklar);
  }

  // An event (id, name, data, time); false for an unknown item. The callback may rebuild
  // the menu, so it runs on copies.
  bool olay(GVariant* olay) {
    gint32 kimlik = 0;
    const gchar* ad = nullptr;
    g_variant_get_child(olay, 0, "i", &kimlik);
    g_variant_get_child(olay, 1, "&s", &ad);
    if (!var(kimlik)) return false;
    if (std::string_view(ad) != "clicked" || kimlik == 0 || !secildi) return true;
    const std::string secilen = girdiler[static_cast<std::size_t>(kimlik) - 1].kimlik;
    auto cagrilacak = secildi;
    if (!secilen.empty()) cagrilacak(secilen);
    return true;
  }

  DbusYaniti yerlesim(GVariant* argumanlar) const {
    gint32 ust = 0;
    gint32 derinlik = 0;
    GVariant* adlar = nullptr;
    g_variant_get(argumanlar, "(ii@as)", &ust, &derinlik, &adlar);
    Degisken tut(adlar);
    if (!var(ust)) return DbusYaniti::hatali(BILINMEYEN);
    return DbusYaniti::deger(g_variant_new("(u@(ia{sv}av))", surum, dugum(ust, derinlik, adlar)));
  }

  DbusYaniti topluOzellikler(GVariant* argumanlar) const {
    Degisken kimlikler(g_variant_get_child_value(argumanlar, 0));
    Degisken adlar(g_variant_get_child_value(argumanlar, 1));
    const auto istenen = kimlikDizisi(kimlikler.get());
    GVariantBuilder b;
    g_variant_builder_init(&b, G_VARIANT_TYPE("a(ia{sv})"));
    auto ekle = [&](gint32 kimlik) {
      if (var(kimlik)) {
        g_variant_builder_add(&b, "(i@a{sv})", kimlik, ozellikleri(kimlik, adlar.get()));
      }
    };
    for (gint32 kimlik : istenen) ekle(kimlik);
    if (istenen.empty()) {
      for (gint32 kimlik = 0; var(kimlik); ++kimlik) ekle(kimlik);
    }
    return DbusYaniti::deger(g_variant_new("(@a(ia{sv}))", g_variant_builder_end(&b)));
  }

  DbusYaniti tekOzellik(GVariant* argumanlar) const {
    gint32 kimlik = 0;
    const gchar* ad = nullptr;
    g_variant_get(argumanlar, "(i&s)", &kimlik, &ad);
    if (!var(kimlik)) return DbusYaniti::hatali(BILINMEYEN);
    Degisken hepsi(g_variant_ref_sink(ozellikleri(kimlik, nullptr)));
    Degisken deger(g_variant_lookup_value(hepsi.get(), ad, nullptr));
    if (!deger) return DbusYaniti::hatali("no such property");
    return DbusYaniti::deger(g_variant_new("(v)", deger.get()));
  }

  DbusYaniti olayGeldi(GVariant* argumanlar) {
    if (!olay(argumanlar)) return DbusYaniti::hatali(BILINMEYEN);
    return {};
  }

  DbusYaniti olaylarGeldi(GVariant* argumanlar) {
    Degisken olaylar(g_variant_get_child_value(argumanlar, 0));
    GVariantBuilder hatalar;
    g_variant_builder_init(&hatalar, G_VARIANT_TYPE("ai"));
    const gsize sayi = g_variant_n_children(olaylar.get());
    for (gsize i = 0; i < sayi; ++i) {
      Degisken tek(g_variant_get_child_value(olaylar.get(), i));
      if (olay(tek.get())) continue;
      gint32 kimlik = 0;
      g_variant_get_child(tek.get(), 0, "i", &kimlik);
      g_variant_builder_add(&hatalar, "i", kimlik);
    }
    return DbusYaniti::deger(g_variant_new("(@ai)", g_variant_builder_end(&hatalar)));
  }

  DbusYaniti gosterilecek(GVariant* argumanlar) const {
    gint32 kimlik = 0;
    g_variant_get(argumanlar, "(i)", &kimlik);
    if (!var(kimlik)) return DbusYaniti::hatali(BILINMEYEN);
    return DbusYaniti::deger(g_variant_new("(b)", FALSE));
  }

  DbusYaniti toplucaGosterilecek(GVariant* argumanlar) const {
    Degisken kimlikler(g_variant_get_child_value(argumanlar, 0));
    GVariantBuilder hatalar;
    g_variant_builder_init(&hatalar, G_VARIANT_TYPE("ai"));
    for (gint32 kimlik : kimlikDizisi(kimlikler.get())) {
      if (!var(kimlik)) g_variant_builder_add(&hatalar, "i", kimlik);
    }
    return DbusYaniti::deger(g_variant_new("(@ai@ai)",
                                           g_variant_new_array(G_VARIANT_TYPE_INT32, nullptr, 0),
                                           g_variant_builder_end(&hatalar)));
  }

  DbusYaniti cagri(const char* yontem, GVariant* argumanlar) override {
    const std::string_view ad = yontem;
    if (ad == "GetLayout") return yerlesim(argumanlar);
    if (ad == "GetGroupProperties") return topluOzellikler(argumanlar);
    if (ad == "GetProperty") return tekOzellik(argumanlar);
    if (ad == "Event") return olayGeldi(argumanlar);
    if (ad == "EventGroup") return olaylarGeldi(argumanlar);
    if (ad == "AboutToShow") return gosterilecek(argumanlar);
    return toplucaGosterilecek(argumanlar);
  }

  GVariant* ozellik(const char* ad) override {
    const std::string_view istenen = ad;
    if (istenen == "Version") return g_variant_new_uint32(3);
    if (istenen == "TextDirection") return g_variant_new_string("ltr");
    if (istenen == "Status") return g_variant_new_string("normal");
    if (istenen == "IconThemePath") return g_variant_new_strv(nullptr, 0);
    return nullptr;
  }
};

DbusMenusu::DbusMenusu(GDBusConnection* hat, const char* yol)
    : hat_(G_DBUS_CONNECTION(g_object_ref(hat))), yol_(yol), nesne_(std::make_shared<Nesne>()) {
  static GDBusInterfaceInfo* const arayuz = dbusArayuzu(TANIM, ARAYUZ);
  kayit_ = dbusNesnesiKaydet(hat_.get(), yol_.c_str(), arayuz, nesne_);
}

DbusMenusu::~DbusMenusu() {
  sustur();
  if (kayit_ != 0) g_dbus_connection_unregister_object(hat_.get(), kayit_);
}

void DbusMenusu::kur(const std::vector<MenuCubuguGirdisi>& girdiler,
                     std::function<void(const std::string&)> secildi) {
  nesne_->girdiler = girdiler;
  nesne_->secildi = std::move(secildi);
  ++nesne_->surum;
  g_dbus_connection_emit_signal(hat_.get(), nullptr, yol_.c_str(), ARAYUZ, "LayoutUpdated",
                                g_variant_new("(ui)", nesne_->surum, 0), nullptr);
}

void DbusMenusu::sustur() { nesne_->secildi = nullptr; }

}  // namespace nevo
