#pragma once
#import <WebKit/WebKit.h>

#include <memory>

#include "app/indirme/indirme.hpp"

namespace nevo::mac {

// A download the web view started (a link with `download`, a response it is told to save)
// reports to `olaylar`, which decides whether it goes on and where it is written.
void indirmeBasladi(WKDownload* indirme, std::weak_ptr<IndirmeOlaylari> olaylar)
    API_AVAILABLE(macos(11.3));

}  // namespace nevo::mac
