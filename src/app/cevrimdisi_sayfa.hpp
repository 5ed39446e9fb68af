#pragma once
#include <string>

#include "app/platform_metinleri.hpp"

namespace nevo {

// Part 1.5: the offline page, loaded from a string without a base address.
std::string cevrimdisiSayfa(const PlatformMetinleri& metinler);

}  // namespace nevo
