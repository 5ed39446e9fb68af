#pragma once
#include <string>

namespace nevo {

inline constexpr double SERIT_BOSLUGU = 40;  // the sheet's top padding, in pixels

// Part 1.2: the style script injected at document start in the main frame.
std::string stilBetigi();

// The number printed with one decimal place, as the sheet writes it ("40.0").
std::string birOndalik(double sayi);

}  // namespace nevo
