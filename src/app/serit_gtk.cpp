#include "app/serit_gtk.hpp"

#include <utility>

namespace nevo {

SeritGtk::SeritGtk(PencereOlaylari& olaylar)
    : olaylar_(olaylar), kutu_(paylas(GTK_EVENT_BOX(gtk_event_box_new()))) {
  gtk_widget_set_name(parca(), "serit");
  gtk_event_box_set_visible_window(kutu_.get(), FALSE);
  gtk_event_box_set_above_child(kutu_.get(), TRUE);
  gtk_widget_add_events(parca(), GDK_BUTTON_PRESS_MASK | GDK_BUTTON_RELEASE_MASK |
                                     GDK_BUTTON_MOTION_MASK);
  tiklama_ = sahiplen(gtk_gesture_multi_press_new(parca()));
  gtk_gesture_single_set_button(GTK_GESTURE_SINGLE(tiklama_.get()), GDK_BUTTON_PRIMARY);
  Sinyal<void(GtkGestureMultiPress*, gint, gdouble, gdouble)>::bagla(
      tiklama_.get(), "pressed", [this](GtkGestureMultiPress*, gint n, gdouble x, gdouble y) {
        basildi(n, x, y);
      });
  Sinyal<gboolean(GtkWidget*, GdkEventMotion*)>::bagla(
      parca(), "motion-notify-event",
      [this](GtkWidget*, GdkEventMotion* olay) { return kipirdadi(olay); });
  Sinyal<gboolean(GtkWidget*, GdkEventButton*)>::bagla(
      parca(), "button-release-event", [this](GtkWidget*, GdkEventButton*) {
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

namespace {

const char* simgeAdi(Dugme d) {
  switch (d) {
    case Dugme::Menu: return "open-menu-symbolic";
    case Dugme::Kucult: return "window-minimize-symbolic";
    case Dugme::Buyut: return "window-maximize-symbolic";
    case Dugme::Kapat: return "window-close-symbolic";
  }
  return "";
}

GtkWidget* dugme(Dugme tur, GMenuModel* menu, const DugmeEylemi& eylem) {
  GtkWidget* d = tur == Dugme::Menu ? gtk_menu_button_new() : gtk_button_new();
  if (GtkWidget* eski = gtk_bin_get_child(GTK_BIN(d))) gtk_widget_destroy(eski);
  gtk_container_add(GTK_CONTAINER(d), gtk_image_new_from_icon_name(simgeAdi(tur), GTK_ICON_SIZE_MENU));
  gtk_widget_set_can_focus(d, FALSE);
  gtk_style_context_add_class(gtk_widget_get_style_context(d), "nevo-dugme");
  if (tur == Dugme::Menu) {
    gtk_menu_button_set_use_popover(GTK_MENU_BUTTON(d), FALSE);
    gtk_menu_button_set_menu_model(GTK_MENU_BUTTON(d), menu);
  } else {
    Sinyal<void(GtkButton*)>::bagla(d, "clicked", [eylem, tur](GtkButton*) { eylem(tur); });
  }
  return d;
}

GtkWidget* dugmeKutusu(const std::vector<Dugme>& dugmeler, GtkAlign yan, GMenuModel* menu,
                       const DugmeEylemi& eylem) {
  GtkWidget* kutu = gtk_box_new(GTK_ORIENTATION_HORIZONTAL, 6);
  gtk_widget_set_halign(kutu, yan);
  gtk_widget_set_valign(kutu, GTK_ALIGN_START);
  gtk_widget_set_margin_top(kutu, 4);
  gtk_widget_set_margin_start(kutu, 8);
  gtk_widget_set_margin_end(kutu, 8);
  for (Dugme d : dugmeler) gtk_container_add(GTK_CONTAINER(kutu), dugme(d, menu, eylem));
  return kutu;
}

}  // namespace

PencereDugmeleri pencereDugmeleri(const DugmeDuzeni& duzen, GMenuModel* menu,
                                  DugmeEylemi eylem) {
  return {dugmeKutusu(duzen.sol, GTK_ALIGN_START, menu, eylem),
          dugmeKutusu(duzen.sag, GTK_ALIGN_END, menu, eylem)};
}

}  // namespace nevo
