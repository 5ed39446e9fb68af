#pragma once
#include <webkit2/webkit2.h>

#include "temel/glib_gtk.hpp"

namespace nevo {

// The engine's context for the main web view: website data and cookies in the shell's own
// data directory, where they outlive a restart, or kept in memory when that directory
// cannot be written.
GNesne<WebKitWebContext> webBaglamiKur();

}  // namespace nevo
