#pragma once
#include <gtk/gtk.h>

#include <functional>
#include <optional>

#include "temel/geometri.hpp"

namespace nevo {

// The frame of an overlay child, in the core's bottom-left coordinates, for an overlay of
// the given size; empty leaves the child where GTK puts it (by its alignment).
using CocukYeri = std::function<std::optional<Cerceve>(GtkWidget* cocuk, Olcu ust)>;

// Places the overlay's children at every allocation, as the core's layout says.
void cocuklariYerlestir(GtkOverlay* ust, CocukYeri yer);

}  // namespace nevo
