#pragma once
#include <gio/gio.h>

#include <memory>
#include <string>
#include <utility>

namespace nevo {

// The answer to a method call: its values (a tuple; none when null) or an error message.
struct DbusYaniti {
  static DbusYaniti deger(GVariant* degerler) { return {degerler, {}}; }
  static DbusYaniti hatali(std::string hata) { return {nullptr, std::move(hata)}; }

  GVariant* degerler = nullptr;
  std::string hata;
};

// An object that other programs call on a D-Bus connection.
class DbusNesnesi {
 public:
  virtual ~DbusNesnesi() = default;
  // GDBus has checked the method's name and arguments against the interface.
  virtual DbusYaniti cagri(const char* yontem, GVariant* argumanlar) = 0;
  // A floating or owned value of the property, or null when it has none.
  virtual GVariant* ozellik(const char* ad) = 0;
};

// The interface `ad` of the introspection document `xml`, which must hold it. Parsed once
// by each caller and kept for the program's life, as exported objects refer to it.
GDBusInterfaceInfo* dbusArayuzu(const char* xml, const char* ad);

// Exports `nesne` at `yol`; 0 when the path is already taken. The registration shares the
// object, so a call queued before g_dbus_connection_unregister_object still finds it.
guint dbusNesnesiKaydet(GDBusConnection* hat, const char* yol, GDBusInterfaceInfo* arayuz,
                        std::shared_ptr<DbusNesnesi> nesne);

}  // namespace nevo
