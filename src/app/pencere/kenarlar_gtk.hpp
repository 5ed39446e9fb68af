#pragma once
#include <gtk/gtk.h>

namespace nevo {

// Bands along the edges and corners of the undecorated main window that resize it through
// the window manager's own resize, each with its pointer shape. They are there only while
// the window is resizable (the main mode) and neither maximised nor full screen.
void kenarlariEkle(GtkWindow* pencere, GtkOverlay* kap);

}  // namespace nevo
