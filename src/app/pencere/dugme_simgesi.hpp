#pragma once
#include <vector>

#include "app/pencere/cizgi.hpp"
#include "app/pencere/dugme_duzeni.hpp"

namespace nevo {

// The glyph each window button draws in a square of side `kenar`, as strokes of
// `simgeKalinligi(kenar)`: close a cross, minimise a bar low in the square, zoom a square
// outline, menu three bars. Drawn by the shell itself, so that no icon theme is read
// before the window shows.
std::vector<Cizgi> dugmeSimgesi(Dugme dugme, double kenar);
double simgeKalinligi(double kenar);

}  // namespace nevo
