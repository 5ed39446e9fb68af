#pragma once
#include <webkit2/webkit2.h>

#include <string>

#include "temel/glib_gtk.hpp"

namespace nevo {

// The engine's context for the main web view: website data in the shell's own data
// directory, where it outlives a restart, or kept in memory when that directory cannot be
// written.
struct WebBaglami {
  GNesne<WebKitWebContext> baglam;
  std::string cerezDosyasi;  // empty: the cookies are kept in memory
};

WebBaglami webBaglamiKur();

// Opens the lasting cookie store. That starts the engine's network process, which then
// starts after the web view's own process (the one that takes longest to start) instead of
// competing with the making of the context; it must come before the view's first load,
// which has to carry the lasting cookies.
void cerezleriAc(const WebBaglami& baglam);

}  // namespace nevo
