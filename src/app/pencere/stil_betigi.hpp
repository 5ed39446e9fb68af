#pragma once
#include <string>

namespace nevo {

inline constexpr double SERIT_BOSLUGU = 40;  // the sheet's top padding, in pixels

// The style script injected at document start in the main frame: it pads the page's
// sidebar and narrow top bar so they clear the window buttons, and with `sagBosluk`
// above zero the right end of the top bar by that many pixels (buttons on the right).
std::string stilBetigi(double sagBosluk = 0);

// The number printed with one decimal place, as the sheet writes it ("40.0"), whatever
// the process's locale.
std::string birOndalik(double sayi);

}  // namespace nevo
