#pragma once
// Connections of a test to its private message bus (GTestDBus), each a client of its own.
#include <gio/gio.h>

#include <string>

namespace nevo::test {

inline GDBusConnection* veriYolunaBaglan(const std::string& adres) {
  return g_dbus_connection_new_for_address_sync(
      adres.c_str(),
      static_cast<GDBusConnectionFlags>(G_DBUS_CONNECTION_FLAGS_AUTHENTICATION_CLIENT |
                                        G_DBUS_CONNECTION_FLAGS_MESSAGE_BUS_CONNECTION),
      nullptr, nullptr, nullptr);
}

}  // namespace nevo::test
