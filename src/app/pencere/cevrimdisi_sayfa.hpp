#pragma once
#include <string>

#include "app/platform_metinleri.hpp"

namespace nevo {

// The offline page shown when a load fails, loaded from a string without a base address.
std::string cevrimdisiSayfa(const PlatformMetinleri& metinler);

}  // namespace nevo
