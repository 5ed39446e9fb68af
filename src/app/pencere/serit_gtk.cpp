#include "app/pencere/serit_gtk.hpp"

namespace nevo {

SeritGtk::SeritGtk(PencereOlaylari& olaylar)
    : olaylar_(olaylar), kutu_(paylas(GTK_EVENT_BOX(gtk_event_box_new()))) {
  gtk_widget_set_name(parca(), "serit");
  gtk_event_box_set_visible_window(kutu_.get(), FALSE);
  gtk_event_box_set_above_child(kutu_.get(), TRUE);
  gtk_widget_add_events(parca(), GDK_BUTTON_PRESS_MASK | GDK_BUTTON_RELEASE_MASK);
  tiklama_ = sahiplen(gtk_gesture_multi_press_new(parca()));
  gtk_gesture_single_set_button(GTK_GESTURE_SINGLE(tiklama_.get()), GDK_BUTTON_PRIMARY);
  baglantilar_.bagla<void(GtkGestureMultiPress*, gint, gdouble, gdouble)>(
      tiklama_.get(), "pressed",
      [this](GtkGestureMultiPress*, gint n, gdouble x, gdouble y) { basildi(n, x, y); });
}

// A press the core calls a drag hands the pointer to the window manager at once, from
// where the button went down, so the window keeps its offset to the pointer.
void SeritGtk::basildi(int tiklamaSayisi, double x, double y) {
  if (!olaylar_.seritBasildi(tiklamaSayisi)) return;
  GtkGesture* g = tiklama_.get();
  const GdkEvent* olay = gtk_gesture_get_last_event(g, gtk_gesture_get_last_updated_sequence(g));
  double kokX = x;
  double kokY = y;
  if (olay != nullptr) gdk_event_get_root_coords(olay, &kokX, &kokY);
  guint32 zaman = olay != nullptr ? gdk_event_get_time(olay) : GDK_CURRENT_TIME;
  gtk_window_begin_move_drag(GTK_WINDOW(gtk_widget_get_toplevel(parca())), GDK_BUTTON_PRIMARY,
                             static_cast<int>(kokX), static_cast<int>(kokY), zaman);
}

}  // namespace nevo
