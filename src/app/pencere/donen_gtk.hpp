#pragma once
#include <gtk/gtk.h>

namespace nevo {

// The curtain's spinner: a drawing of the shell's own, so that showing it reads no icon
// theme and loads no image library. It turns while it is on screen and asks for a new
// frame only when its head moves on.
GtkWidget* donenOlustur();

}  // namespace nevo
