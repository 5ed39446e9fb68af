#include "app/pencere/kenarlar_gtk.hpp"

#include <array>
#include <cmath>
#include <memory>

#include "app/pencere/kenar.hpp"
#include "temel/glib_gtk.hpp"

namespace nevo {
namespace {

struct KenarGtk {
  GdkWindowEdge kenar;
  const char* imlec;
};

KenarGtk gtkKenari(Kenar kenar) {
  switch (kenar) {
    case Kenar::SolUst:
      return {GDK_WINDOW_EDGE_NORTH_WEST, "nw-resize"};
    case Kenar::Ust:
      return {GDK_WINDOW_EDGE_NORTH, "n-resize"};
    case Kenar::SagUst:
      return {GDK_WINDOW_EDGE_NORTH_EAST, "ne-resize"};
    case Kenar::Sol:
      return {GDK_WINDOW_EDGE_WEST, "w-resize"};
    case Kenar::Sag:
      return {GDK_WINDOW_EDGE_EAST, "e-resize"};
    case Kenar::SolAlt:
      return {GDK_WINDOW_EDGE_SOUTH_WEST, "sw-resize"};
    case Kenar::Alt:
      return {GDK_WINDOW_EDGE_SOUTH, "s-resize"};
    case Kenar::SagAlt:
      break;
  }
  return {GDK_WINDOW_EDGE_SOUTH_EAST, "se-resize"};
}

// The edge under a point of a band, from the band's own coordinates.
std::optional<Kenar> kenarAltinda(GtkWidget* bant, double x, double y) {
  GtkWidget* pencere = gtk_widget_get_toplevel(bant);
  int px = 0, py = 0;
  gtk_widget_translate_coordinates(bant, pencere, static_cast<int>(std::floor(x)),
                                   static_cast<int>(std::floor(y)), &px, &py);
  return kenarBul({double(gtk_widget_get_allocated_width(pencere)),
                   double(gtk_widget_get_allocated_height(pencere))},
                  px, py);
}

void imleciKoy(GdkWindow* pencere, const std::optional<Kenar>& kenar) {
  if (pencere == nullptr) return;
  GdkCursor* imlec =
      kenar ? gdk_cursor_new_from_name(gdk_window_get_display(pencere), gtkKenari(*kenar).imlec)
            : nullptr;
  gdk_window_set_cursor(pencere, imlec);
  if (imlec != nullptr) g_object_unref(imlec);
}

GtkWidget* bant(GtkWindow* pencere, GtkAlign yatay, GtkAlign dikey) {
  GtkWidget* kutu = gtk_event_box_new();
  gtk_event_box_set_visible_window(GTK_EVENT_BOX(kutu), FALSE);
  gtk_widget_set_halign(kutu, yatay);
  gtk_widget_set_valign(kutu, dikey);
  const int kalinlik = static_cast<int>(KENAR_BANDI);
  gtk_widget_set_size_request(kutu, yatay == GTK_ALIGN_FILL ? -1 : kalinlik,
                              dikey == GTK_ALIGN_FILL ? -1 : kalinlik);
  gtk_widget_add_events(kutu,
                        GDK_BUTTON_PRESS_MASK | GDK_POINTER_MOTION_MASK | GDK_ENTER_NOTIFY_MASK);
  gtk_widget_set_no_show_all(kutu, TRUE);
  Sinyal<gboolean(GtkWidget*, GdkEventMotion*)>::bagla(
      kutu, "motion-notify-event", [](GtkWidget* b, GdkEventMotion* olay) {
        imleciKoy(olay->window, kenarAltinda(b, olay->x, olay->y));
        return FALSE;
      });
  Sinyal<gboolean(GtkWidget*, GdkEventCrossing*)>::bagla(
      kutu, "enter-notify-event", [](GtkWidget* b, GdkEventCrossing* olay) {
        imleciKoy(olay->window, kenarAltinda(b, olay->x, olay->y));
        return FALSE;
      });
  Sinyal<gboolean(GtkWidget*, GdkEventButton*)>::bagla(
      kutu, "button-press-event", [pencere](GtkWidget* b, GdkEventButton* olay) -> gboolean {
        if (olay->type != GDK_BUTTON_PRESS || olay->button != GDK_BUTTON_PRIMARY) return FALSE;
        const auto kenar = kenarAltinda(b, olay->x, olay->y);
        if (!kenar) return FALSE;
        gtk_window_begin_resize_drag(pencere, gtkKenari(*kenar).kenar,
                                     static_cast<int>(olay->button), static_cast<int>(olay->x_root),
                                     static_cast<int>(olay->y_root), olay->time);
        return TRUE;
      });
  return kutu;
}

// The bands show while the window manager would honour a resize.
struct Bantlar {
  std::array<GtkWidget*, 4> parcalar{};
  GdkWindowState durum{};

  void tazele(GtkWindow* pencere) const {
    const bool goster = gtk_window_get_resizable(pencere) &&
                        !(durum & (GDK_WINDOW_STATE_MAXIMIZED | GDK_WINDOW_STATE_FULLSCREEN));
    for (GtkWidget* parca : parcalar) gtk_widget_set_visible(parca, goster);
  }
};

}  // namespace

void kenarlariEkle(GtkWindow* pencere, GtkOverlay* kap) {
  auto bantlar = std::make_shared<Bantlar>();
  bantlar->parcalar = {
      bant(pencere, GTK_ALIGN_FILL, GTK_ALIGN_START), bant(pencere, GTK_ALIGN_FILL, GTK_ALIGN_END),
      bant(pencere, GTK_ALIGN_START, GTK_ALIGN_FILL), bant(pencere, GTK_ALIGN_END, GTK_ALIGN_FILL)};
  for (GtkWidget* parca : bantlar->parcalar) gtk_overlay_add_overlay(kap, parca);
  Sinyal<void(GtkWindow*, GParamSpec*)>::bagla(
      pencere, "notify::resizable", [bantlar](GtkWindow* p, GParamSpec*) { bantlar->tazele(p); });
  Sinyal<gboolean(GtkWidget*, GdkEventWindowState*)>::bagla(
      pencere, "window-state-event", [bantlar](GtkWidget* p, GdkEventWindowState* olay) {
        bantlar->durum = olay->new_window_state;
        bantlar->tazele(GTK_WINDOW(p));
        return FALSE;
      });
  bantlar->tazele(pencere);
}

}  // namespace nevo
