#include "temel/dbus_nesnesi_gtk.hpp"

#include <utility>

namespace nevo {
namespace {

DbusNesnesi& kayitliNesne(gpointer veri) {
  return **static_cast<std::shared_ptr<DbusNesnesi>*>(veri);
}

void cagriGeldi(GDBusConnection*, const gchar*, const gchar*, const gchar*, const gchar* yontem,
                GVariant* argumanlar, GDBusMethodInvocation* cagri, gpointer veri) {
  DbusYaniti yanit = kayitliNesne(veri).cagri(yontem, argumanlar);
  if (!yanit.hata.empty()) {
    if (yanit.degerler != nullptr) g_variant_unref(g_variant_ref_sink(yanit.degerler));
    g_dbus_method_invocation_return_dbus_error(cagri, "org.freedesktop.DBus.Error.InvalidArgs",
                                               yanit.hata.c_str());
    return;
  }
  g_dbus_method_invocation_return_value(cagri, yanit.degerler);
}

GVariant* ozellikIstendi(GDBusConnection*, const gchar*, const gchar*, const gchar*,
                         const gchar* ad, GError** hata, gpointer veri) {
  GVariant* deger = kayitliNesne(veri).ozellik(ad);
  if (deger == nullptr) {
    g_set_error(hata, G_DBUS_ERROR, G_DBUS_ERROR_UNKNOWN_PROPERTY, "no property %s", ad);
  }
  return deger;
}

const GDBusInterfaceVTable TABLO{cagriGeldi, ozellikIstendi, nullptr, {}};

}  // namespace

GDBusInterfaceInfo* dbusArayuzu(const char* xml, const char* ad) {
  GDBusNodeInfo* dugum = g_dbus_node_info_new_for_xml(xml, nullptr);
  GDBusInterfaceInfo* arayuz =
      g_dbus_interface_info_ref(g_dbus_node_info_lookup_interface(dugum, ad));
  g_dbus_node_info_unref(dugum);
  return arayuz;
}

guint dbusNesnesiKaydet(GDBusConnection* hat, const char* yol, GDBusInterfaceInfo* arayuz,
                        std::shared_ptr<DbusNesnesi> nesne) {
  auto* veri = new std::shared_ptr<DbusNesnesi>(std::move(nesne));
  return g_dbus_connection_register_object(
      hat, yol, arayuz, &TABLO, veri,
      +[](gpointer v) { delete static_cast<std::shared_ptr<DbusNesnesi>*>(v); }, nullptr);
}

}  // namespace nevo
