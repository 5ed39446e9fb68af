#pragma once
#include <webkit2/webkit2.h>

#include <memory>

#include "app/indirme/indirme.hpp"

namespace nevo {

// Every download the engine starts in `baglam` (a link, a response turned into a
// download, an address the shell has the view fetch) reports to `olaylar`, which decides
// whether it goes on and where it is written.
void indirmeleriBagla(WebKitWebContext* baglam, std::weak_ptr<IndirmeOlaylari> olaylar);

}  // namespace nevo
