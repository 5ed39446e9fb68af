#pragma once

#include <gtk/gtk.h>

namespace nevo {

// With the launch trace on, marks the window's map, the page's first response and the
// web view's first paint of the page.
void acilisIziniBagla(GtkWidget* pencere, GtkWidget* web);

}  // namespace nevo
