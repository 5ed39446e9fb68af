#include "desktop/durum_ogesi_gtk.hpp"

#include <filesystem>
#include <string>
#include <string_view>
#include <utility>

#include "temel/dbus_nesnesi_gtk.hpp"
#include "temel/kaynaklar.hpp"
#include "yapilandirma.hpp"

namespace nevo {
namespace {

constexpr const char* ARAYUZ = "org.kde.StatusNotifierItem";
constexpr const char* IZLEYICI = "org.kde.StatusNotifierWatcher";
constexpr const char* TANIM = R"(<node>
  <interface name='org.kde.StatusNotifierItem'>
    <property name='Category' type='s' access='read'/>
    <property name='Id' type='s' access='read'/>
    <property name='Title' type='s' access='read'/>
    <property name='Status' type='s' access='read'/>
    <property name='WindowId' type='i' access='read'/>
    <property name='IconName' type='s' access='read'/>
    <property name='IconThemePath' type='s' access='read'/>
    <property name='IconPixmap' type='a(iiay)' access='read'/>
    <property name='OverlayIconName' type='s' access='read'/>
    <property name='AttentionIconName' type='s' access='read'/>
    <property name='ToolTip' type='(sa(iiay)ss)' access='read'/>
    <property name='ItemIsMenu' type='b' access='read'/>
    <property name='Menu' type='o' access='read'/>
    <property name='XAyatanaLabel' type='s' access='read'/>
    <property name='XAyatanaLabelGuide' type='s' access='read'/>
    <method name='ContextMenu'>
      <arg name='x' type='i' direction='in'/><arg name='y' type='i' direction='in'/>
    </method>
    <method name='Activate'>
      <arg name='x' type='i' direction='in'/><arg name='y' type='i' direction='in'/>
    </method>
    <method name='SecondaryActivate'>
      <arg name='x' type='i' direction='in'/><arg name='y' type='i' direction='in'/>
    </method>
    <method name='Scroll'>
      <arg name='delta' type='i' direction='in'/><arg name='orientation' type='s' direction='in'/>
    </method>
    <signal name='NewTitle'/>
    <signal name='NewIcon'/>
    <signal name='NewToolTip'/>
    <signal name='NewStatus'><arg name='status' type='s'/></signal>
  </interface>
</node>)";

GVariant* bosResimler() { return g_variant_new_array(G_VARIANT_TYPE("(iiay)"), nullptr, 0); }

// Registers the item with the watcher that has just appeared. A watcher told an object
// path takes the caller's bus name with it.
void izleyiciGeldi(GDBusConnection* hat, const gchar*, const gchar*, gpointer) {
  g_dbus_connection_call(hat, IZLEYICI, "/StatusNotifierWatcher", IZLEYICI,
                         "RegisterStatusNotifierItem", g_variant_new("(s)", DurumOgesiGtk::YOL),
                         nullptr, G_DBUS_CALL_FLAGS_NO_AUTO_START, -1, nullptr, nullptr, nullptr);
}

// Without a session bus there is nowhere to show the item.
class DurumOgesiYok final : public DurumOgesi {
 public:
  void goster(const DurumOgesiTasarimi&, std::function<void(const std::string&)>) override {}
  void kaldir() override {}
};

}  // namespace

// The item's properties as hosts read them; its methods do nothing, as the menu is all it
// offers (ItemIsMenu).
struct DurumOgesiGtk::Nesne final : DbusNesnesi {
  std::string baslik;
  std::string etiket;  // shown where the icon cannot be
  std::string simgeAdi;
  std::string simgeDizini;
  const char* durum = "Passive";

  DbusYaniti cagri(const char*, GVariant*) override { return {}; }

  GVariant* ozellik(const char* ad) override {
    const std::string_view istenen = ad;
    auto metin = [](const std::string& s) { return g_variant_new_string(s.c_str()); };
    if (istenen == "Category") return g_variant_new_string("ApplicationStatus");
    if (istenen == "Id") return g_variant_new_string(yapilandirma::UYGULAMA_KIMLIGI);
    if (istenen == "Title") return metin(baslik);
    if (istenen == "Status") return g_variant_new_string(durum);
    if (istenen == "WindowId") return g_variant_new_int32(0);
    if (istenen == "IconName") return metin(simgeAdi);
    if (istenen == "IconThemePath") return metin(simgeDizini);
    if (istenen == "IconPixmap") return bosResimler();
    if (istenen == "OverlayIconName" || istenen == "AttentionIconName") return metin("");
    if (istenen == "ToolTip") {
      return g_variant_new("(s@a(iiay)ss)", "", bosResimler(), baslik.c_str(), "");
    }
    if (istenen == "ItemIsMenu") return g_variant_new_boolean(TRUE);
    if (istenen == "Menu") return g_variant_new_object_path(MENU_YOLU);
    if (istenen == "XAyatanaLabel" || istenen == "XAyatanaLabelGuide") return metin(etiket);
    return nullptr;
  }
};

DurumOgesiGtk::DurumOgesiGtk(GDBusConnection* hat, const std::optional<std::string>& simge)
    : hat_(G_DBUS_CONNECTION(g_object_ref(hat))), nesne_(std::make_shared<Nesne>()) {
  if (simge) {
    nesne_->simgeAdi = std::filesystem::path(*simge).stem().string();
    nesne_->simgeDizini = std::filesystem::path(*simge).parent_path().string();
  }
}

DurumOgesiGtk::~DurumOgesiGtk() {
  kaldir();
  if (izleme_ != 0) g_bus_unwatch_name(izleme_);
  if (kayit_ != 0) g_dbus_connection_unregister_object(hat_.get(), kayit_);
}

void DurumOgesiGtk::goster(const DurumOgesiTasarimi& tasarim,
                           std::function<void(const std::string&)> secildi) {
  yayinla();
  if (nesne_->baslik != tasarim.ipucu) {
    nesne_->baslik = tasarim.ipucu;
    for (const char* sinyal : {"NewTitle", "NewToolTip"}) {
      g_dbus_connection_emit_signal(hat_.get(), nullptr, YOL, ARAYUZ, sinyal, nullptr, nullptr);
    }
  }
  nesne_->etiket = nesne_->simgeAdi.empty() ? tasarim.basHarf : "";
  menu_->kur(tasarim.girdiler, std::move(secildi));
  durumYay("Active");
}

void DurumOgesiGtk::kaldir() {
  if (menu_) menu_->sustur();
  durumYay("Passive");
}

// Exports the item and its menu and starts looking for watchers, once.
void DurumOgesiGtk::yayinla() {
  if (menu_) return;
  menu_ = std::make_unique<DbusMenusu>(hat_.get(), MENU_YOLU);
  static GDBusInterfaceInfo* const arayuz = dbusArayuzu(TANIM, ARAYUZ);
  kayit_ = dbusNesnesiKaydet(hat_.get(), YOL, arayuz, nesne_);
  izleme_ = g_bus_watch_name_on_connection(hat_.get(), IZLEYICI, G_BUS_NAME_WATCHER_FLAGS_NONE,
                                           izleyiciGeldi, nullptr, nullptr, nullptr);
}

void DurumOgesiGtk::durumYay(const char* durum) {
  if (std::string_view(nesne_->durum) == durum) return;
  nesne_->durum = durum;
  g_dbus_connection_emit_signal(hat_.get(), nullptr, YOL, ARAYUZ, "NewStatus",
                                g_variant_new("(s)", durum), nullptr);
}

std::unique_ptr<DurumOgesi> durumOgesiOlustur() {
  // The application has connected to the session bus by now: this returns that connection.
  GNesne<GDBusConnection> hat = sahiplen(g_bus_get_sync(G_BUS_TYPE_SESSION, nullptr, nullptr));
  if (!hat) return std::make_unique<DurumOgesiYok>();
  return std::make_unique<DurumOgesiGtk>(hat.get(), kaynakYolu(SIMGE_DOSYASI));
}

}  // namespace nevo
