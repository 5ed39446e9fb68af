#pragma once
#include <gio/gio.h>

#include <string>

namespace nevo {

// The desktop portal's bus name and the object that carries its interfaces.
inline constexpr const char* PORTAL = "org.freedesktop.portal.Desktop";
inline constexpr const char* MASAUSTU_YOLU = "/org/freedesktop/portal/desktop";
inline constexpr const char* PORTAL_ISTEGI = "org.freedesktop.portal.Request";

// The path where the portal answers a request made with the handle token `jeton`.
std::string portalIstekYolu(GDBusConnection* baglanti, const std::string& jeton);

}  // namespace nevo
