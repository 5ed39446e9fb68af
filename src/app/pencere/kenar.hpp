#pragma once
#include <optional>

#include "temel/geometri.hpp"

namespace nevo {

// An edge or corner of the main window, by which the user resizes it where the window
// draws no frame of its own.
enum class Kenar { SolUst, Ust, SagUst, Sol, Sag, SolAlt, Alt, SagAlt };

// The band along each edge that resizes the window, and how far along an edge a corner
// reaches from its end, in pixels.
inline constexpr double KENAR_BANDI = 6;
inline constexpr double KOSE_PAYI = 16;

// The edge or corner of a window of the given size under the point (x, y), counted from
// the window's top left; empty away from the edges and outside the window.
std::optional<Kenar> kenarBul(Olcu pencere, double x, double y);

}  // namespace nevo
