#pragma once
#include <webkit2/webkit2.h>

#include "app/pencere/pencere_olaylari.hpp"

namespace nevo {

// The web view's context menu, as the core builds it for what lies under the pointer:
// the engine's own entries are replaced, its spelling suggestions kept; the editing
// entries run the web view's editing commands, enabled as the engine says they can run. A page that
// cancels its `contextmenu` event gets no menu, as the engine decides.
void baglamMenusunuBagla(WebKitWebView* web, PencereOlaylari& olaylar);

}  // namespace nevo
