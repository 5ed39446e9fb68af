#include "app/pencere/stil_betigi.hpp"

#include <cmath>

namespace nevo {
namespace {

constexpr const char* PARCA_1 =
    "(function(){"
    "/* Below a width of 900 the page closes its sidebar, and the left-hand button of its"
    " top bar then slides under the window buttons; in a wider window that bar sits to the"
    " right of the sidebar and needs no extra space. */"
    "var s=document.createElement('style');"
    "s.id='nevo-mac-serit';"
    "s.textContent='[data-testid=\"app-sidebar\"]{padding-top:";
constexpr const char* PARCA_2 =
    "px!important}"
    "@media (max-width:900px){"
    "div:has(> [data-testid=\"app-header-menu\"]),"
    "div:has(> [data-testid=\"app-header-back\"]){padding-top:";
constexpr const char* PARCA_3 = "px!important}}";
// Window buttons on the right cover the right end of the page's top bar at every width.
constexpr const char* SAG_KURAL =
    "div:has(> [data-testid=\"app-header-menu\"]),"
    "div:has(> [data-testid=\"app-header-back\"]){padding-right:";
constexpr const char* PARCA_4 =
    "';"
    "(document.head||document.documentElement).appendChild(s);"
    "})();";

}  // namespace

// Counted in tenths and written digit by digit: no locale and no floating-point formatting
// of the C++ library, whose oldest supported macOS lacks it.
std::string birOndalik(double sayi) {
  const long long onda = std::llround(sayi * 10);
  const long long mutlak = onda < 0 ? -onda : onda;
  const std::string isaret = onda < 0 ? "-" : "";
  return isaret + std::to_string(mutlak / 10) + '.' + static_cast<char>('0' + mutlak % 10);
}

std::string stilBetigi(double sagBosluk) {
  const std::string bosluk = birOndalik(SERIT_BOSLUGU);
  std::string betik = std::string(PARCA_1) + bosluk + PARCA_2 + bosluk + PARCA_3;
  if (sagBosluk > 0) betik += SAG_KURAL + birOndalik(sagBosluk) + "px!important}";
  return betik + PARCA_4;
}

}  // namespace nevo
