#include "app/pencere/serit_gtk.hpp"

#include <utility>

namespace nevo {

SeritGtk::SeritGtk(PencereOlaylari& olaylar)
    : olaylar_(olaylar), kutu_(paylas(GTK_EVENT_BOX(gtk_event_box_new()))) {
  gtk_widget_set_name(parca(), "serit");
  gtk_event_box_set_visible_window(kutu_.get(), FALSE);
  gtk_event_box_set_above_child(kutu_.get(), TRUE);
  gtk_widget_add_events(parca(),
                        GDK_BUTTON_PRESS_MASK | GDK_BUTTON_RELEASE_MASK | GDK_BUTTON_MOTION_MASK);
  tiklama_ = sahiplen(gtk_gesture_multi_press_new(parca()));
  gtk_gesture_single_set_button(GTK_GESTURE_SINGLE(tiklama_.get()), GDK_BUTTON_PRIMARY);
  baglantilar_.bagla<void(GtkGestureMultiPress*, gint, gdouble, gdouble)>(
      tiklama_.get(), "pressed",
      [this](GtkGestureMultiPress*, gint n, gdouble x, gdouble y) { basildi(n, x, y); });
  baglantilar_.bagla<gboolean(GtkWidget*, GdkEventMotion*)>(
      parca(), "motion-notify-event",
      [this](GtkWidget*, GdkEventMotion* olay) { return kipirdadi(olay); });
  baglantilar_.bagla<gboolean(GtkWidget*, GdkEventButton*)>(parca(), "button-release-event",
                                                            [this](GtkWidget*, GdkEventButton*) {
                                                              surukleHazir_ = false;
                                                              return FALSE;
                                                            });
}

void SeritGtk::basildi(int tiklamaSayisi, double x, double y) {
  surukleHazir_ = olaylar_.seritBasildi(tiklamaSayisi);
  basX_ = x;
  basY_ = y;
  GtkGesture* g = tiklama_.get();
  const GdkEvent* olay = gtk_gesture_get_last_event(g, gtk_gesture_get_last_updated_sequence(g));
  if (olay == nullptr || !gdk_event_get_root_coords(olay, &kokX_, &kokY_)) {
    kokX_ = x;
    kokY_ = y;
  }
}

gboolean SeritGtk::kipirdadi(GdkEventMotion* olay) {
  if (!surukleHazir_) return FALSE;
  if (!gtk_drag_check_threshold(parca(), static_cast<int>(basX_), static_cast<int>(basY_),
                                static_cast<int>(olay->x), static_cast<int>(olay->y))) {
    return TRUE;
  }
  surukleHazir_ = false;
  gtk_event_controller_reset(GTK_EVENT_CONTROLLER(tiklama_.get()));
  GtkWidget* ust = gtk_widget_get_toplevel(parca());
  // From where the button went down, so the window keeps its offset to the pointer.
  gtk_window_begin_move_drag(GTK_WINDOW(ust), GDK_BUTTON_PRIMARY, static_cast<int>(kokX_),
                             static_cast<int>(kokY_), olay->time);
  return TRUE;
}

}  // namespace nevo
