#pragma once
#include <gtk/gtk.h>

#include <algorithm>

#include "app/pencere/cizgi.hpp"

namespace nevo {

// The side of the square a drawing widget draws its strokes in.
inline double kareKenari(GtkWidget* alan) {
  return std::min(gtk_widget_get_allocated_width(alan), gtk_widget_get_allocated_height(alan));
}

// Strokes of `kalinlik` with round ends, as the shell's glyphs are drawn.
inline void kalemAl(cairo_t* cr, double kalinlik) {
  cairo_set_line_width(cr, kalinlik);
  cairo_set_line_cap(cr, CAIRO_LINE_CAP_ROUND);
}

// Adds the stroke to the current path; the caller strokes it.
inline void cizgiEkle(cairo_t* cr, const Cizgi& c) {
  cairo_move_to(cr, c.x1, c.y1);
  cairo_line_to(cr, c.x2, c.y2);
}

}  // namespace nevo
