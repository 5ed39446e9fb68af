#pragma once
#include <gtk/gtk.h>

#include "temel/pencere.hpp"

namespace nevo {

// A window port that has a GTK window behind it, to which other windows are attached.
class GtkPenceresi {
 public:
  virtual ~GtkPenceresi() = default;
  virtual GtkWindow* gtkPenceresi() const = 0;
};

// The GTK window behind `pencere`; none for a port that has none.
inline GtkWindow* gtkPenceresi(Pencere& pencere) {
  const auto* gtk = dynamic_cast<const GtkPenceresi*>(&pencere);
  return gtk != nullptr ? gtk->gtkPenceresi() : nullptr;
}

}  // namespace nevo
