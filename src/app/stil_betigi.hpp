#pragma once
#include <string>

namespace nevo {

inline constexpr double SERIT_BOSLUGU = 40;  // the sheet's top padding, in pixels

// The style script injected at document start in the main frame: it pads the page's
// sidebar and narrow top bar so they clear the window buttons.
std::string stilBetigi();

// The number printed with one decimal place, as the sheet writes it ("40.0").
std::string birOndalik(double sayi);

}  // namespace nevo
