#pragma once
#include <cairo.h>

#include "app/pencere/cizgi.hpp"

namespace nevo {

// Adds the stroke to the current path; the caller strokes it.
inline void cizgiEkle(cairo_t* cr, const Cizgi& c) {
  cairo_move_to(cr, c.x1, c.y1);
  cairo_line_to(cr, c.x2, c.y2);
}

}  // namespace nevo
