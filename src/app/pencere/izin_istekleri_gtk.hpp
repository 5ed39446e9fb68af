#pragma once
#include <webkit2/webkit2.h>

#include <string>

namespace nevo {

// Media capture in the view: media streams and WebRTC on, and every permission the engine
// asks for (and every state a page queries) decided by the permission table for the
// application at `uygulamaAdresi`. Called once, before the view loads anything; what it
// connects lives as long as the view and its content manager.
void izinIstekleriniBagla(WebKitWebView* web, WebKitUserContentManager* yonetici,
                          const std::string& uygulamaAdresi);

}  // namespace nevo
