#include "app/stil_betigi.hpp"

#include <cstdio>

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
constexpr const char* PARCA_3 =
    "px!important}}';"
    "(document.head||document.documentElement).appendChild(s);"
    "})();";

}  // namespace

std::string birOndalik(double sayi) {
  char tampon[32];
  std::snprintf(tampon, sizeof tampon, "%.1f", sayi);
  return tampon;
}

std::string stilBetigi() {
  const std::string bosluk = birOndalik(SERIT_BOSLUGU);
  return std::string(PARCA_1) + bosluk + PARCA_2 + bosluk + PARCA_3;
}

}  // namespace nevo
