#pragma once
#include <gtk/gtk.h>

#include "app/pencere/pencere_olaylari.hpp"

namespace nevo {

// Gives the page the first say on the menu's key equivalents. A window runs its
// accelerators before its focused widget sees a key; here a Control key press goes to the
// web view first. A key the page handles (preventDefault) stays there; one it leaves
// alone comes back from the web view and the window's accelerator then runs. While the
// core says the page does not answer, the accelerators act at once, and a key still
// waiting for the page when it stops answering is acted on then.
void tuslariOnceSayfayaVer(GtkWindow* pencere, GtkWidget* web, PencereOlaylari& olaylar);

}  // namespace nevo
