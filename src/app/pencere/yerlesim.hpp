#pragma once
#include "temel/geometri.hpp"

namespace nevo {

// Frames of the web view, the curtain and the strip inside a container of the given
// size, whose window leaves `icerikYuksekligi` below its title bar: web view and curtain
// fill the container, the strip is the band above that height.
struct KapYerlesimi {
  Cerceve web;
  Cerceve perde;
  Cerceve serit;
};
KapYerlesimi yerlestir(Olcu kap, double icerikYuksekligi);

// The curtain's icon (Perde::SIMGE square, 18 above the centre) and spinner (18 × 18, 54
// below the centre) inside a curtain of the given size.
struct PerdeYerlesimi {
  Cerceve simge;
  Cerceve donen;
};
PerdeYerlesimi perdeYerlesimi(Olcu perde);

// A frame in bottom-left coordinates, expressed from the top left of a parent of height
// `ustBoy` (the toolkits that count y downwards need it).
Cerceve ustSoldan(Cerceve cerceve, double ustBoy);

}  // namespace nevo
