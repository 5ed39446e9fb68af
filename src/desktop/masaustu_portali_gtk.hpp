#pragma once

namespace nevo {

// The desktop portal's bus name and the object that carries its interfaces.
inline constexpr const char* PORTAL = "org.freedesktop.portal.Desktop";
inline constexpr const char* MASAUSTU_YOLU = "/org/freedesktop/portal/desktop";

}  // namespace nevo
