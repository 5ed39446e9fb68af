#pragma once
#include <gtk/gtk.h>

#include "app/pencere/pencere_olaylari.hpp"

namespace nevo {

// The commands with keys but no menu entry (zoom, print) as the application's actions
// with accelerators, so they come after the page as the menu's keys do; and Ctrl with the
// wheel over the web view zooms.
void tusKomutlariniKur(GtkApplication* uygulama, GtkWidget* web, PencereOlaylari& olaylar);

}  // namespace nevo
