#pragma once
#include <webkit2/webkit2.h>

#include "app/pencere/ust_gezinme_izi.hpp"
#include "temel/glib_gtk.hpp"

namespace nevo {

// Has the top page report each of its own navigations to another document to `iz`, from a
// script world of its own, before the engine asks the navigation policy about it. The
// report rides on the web's navigation events, which the engine offers as a feature to
// turn on. The reports stop with the connection returned.
SinyalBaglantisi ustGezinmeleriDinle(WebKitUserContentManager* yonetici, WebKitSettings* ayarlar,
                                     UstGezinmeIzi& iz);

}  // namespace nevo
