#pragma once
#include <nlohmann/json.hpp>

namespace nevo {

// A floating-point number as a page's script writes it in JSON: null when it is NaN or
// ±Infinity, an integer when it is whole and within ±2^53 (every such number is exact), the
// number itself otherwise.
nlohmann::json betikSayisi(double sayi);

}  // namespace nevo
