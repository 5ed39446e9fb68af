#pragma once
#include <gtk/gtk.h>

#include <functional>

#include "app/pencere/dugme_duzeni.hpp"

namespace nevo {

// The close, minimise, zoom and menu buttons of the undecorated window, laid out as the
// desktop's gtk-decoration-layout lays them out: one box for each side of the strip.
struct PencereDugmeleri {
  GtkWidget* sol;
  GtkWidget* sag;
};
using DugmeEylemi = std::function<void(Dugme)>;
PencereDugmeleri pencereDugmeleri(const DugmeDuzeni& duzen, GMenuModel* menu, DugmeEylemi eylem);

}  // namespace nevo
