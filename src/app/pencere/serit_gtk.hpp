#pragma once
#include <gtk/gtk.h>

#include "app/pencere/pencere_olaylari.hpp"
#include "temel/glib_gtk.hpp"

namespace nevo {

// The title strip: a transparent band that takes every press in it. A press that the
// core calls a drag starts a window move on the press itself.
class SeritGtk {
 public:
  explicit SeritGtk(PencereOlaylari& olaylar);
  SeritGtk(const SeritGtk&) = delete;
  SeritGtk& operator=(const SeritGtk&) = delete;

  GtkWidget* parca() const { return GTK_WIDGET(kutu_.get()); }

 private:
  void basildi(int tiklamaSayisi, double x, double y);

  PencereOlaylari& olaylar_;
  GNesne<GtkEventBox> kutu_;
  GNesne<GtkGesture> tiklama_;
  SinyalBaglantilari baglantilar_;
};

}  // namespace nevo
