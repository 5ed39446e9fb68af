#pragma once
// The macOS layer's ports for the desktop integrations (no Objective-C types here).
#include <memory>

#include "desktop/baslangic.hpp"
#include "desktop/tercih.hpp"
#include "desktop/uyku_engeli.hpp"

namespace nevo::mac {

std::unique_ptr<TercihDeposu> tercihDeposu();
std::unique_ptr<GucKilidi> gucKilidi();
std::unique_ptr<GirisOgesi> girisOgesi();

}  // namespace nevo::mac
