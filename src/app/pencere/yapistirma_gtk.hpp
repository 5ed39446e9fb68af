#pragma once
#include <webkit2/webkit2.h>

namespace nevo {

// A paste the engine hands the page empty gets the clipboard's PNG, read by the shell,
// as a file (`yapistirmaGozcusu`).
void yapistirmayiBagla(WebKitWebView* web, WebKitUserContentManager* yonetici);

}  // namespace nevo
