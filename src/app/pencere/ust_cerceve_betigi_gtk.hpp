#pragma once
#include <webkit2/webkit2.h>

namespace nevo {

// Adds a script that runs at document start in the top frame only: in the page's own
// world when `dunya` is null, else in the script world of that name.
void ustCerceveBetigi(WebKitUserContentManager* yonetici, const char* kaynak, const char* dunya);

}  // namespace nevo
