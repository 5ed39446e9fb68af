#include "temel/json_sayisi.hpp"

#include <cmath>
#include <cstdint>

namespace nevo {

namespace {
constexpr double TAM_SINIR = 9007199254740992.0;  // 2^53
}  // namespace

nlohmann::json betikSayisi(double sayi) {
  if (!std::isfinite(sayi)) return nullptr;
  if (std::trunc(sayi) == sayi && std::fabs(sayi) <= TAM_SINIR) {
    return static_cast<std::int64_t>(sayi);
  }
  return sayi;
}

}  // namespace nevo
