#include "app/pencere/donen_gtk.hpp"

#include "app/pencere/cizgi_gtk.hpp"
#include "app/pencere/donen.hpp"

namespace nevo {
namespace {

constexpr const char* ADIM = "nevo-donen-adimi";

int adimi(GtkWidget* donen) {
  GdkFrameClock* saat = gtk_widget_get_frame_clock(donen);
  return donenAdimi(saat != nullptr ? gdk_frame_clock_get_frame_time(saat)
                                    : g_get_monotonic_time());
}

gboolean ciz(GtkWidget* donen, cairo_t* cr, gpointer) {
  const double kenar = kareKenari(donen);
  kalemAl(cr, kolKalinligi(kenar));
  for (const auto& kol : donenKollari(kenar, adimi(donen))) {
    cairo_set_source_rgba(cr, DONEN_RENGI.kirmizi, DONEN_RENGI.yesil, DONEN_RENGI.mavi,
                          kol.opaklik);
    cizgiEkle(cr, kol.cizgi);
    cairo_stroke(cr);
  }
  return FALSE;
}

// Called each frame while the spinner is realized; stored steps are offset by one, so that
// no step stored reads as zero.
gboolean kare(GtkWidget* donen, GdkFrameClock*, gpointer) {
  const int adim = adimi(donen) + 1;
  if (GPOINTER_TO_INT(g_object_get_data(G_OBJECT(donen), ADIM)) != adim) {
    g_object_set_data(G_OBJECT(donen), ADIM, GINT_TO_POINTER(adim));
    gtk_widget_queue_draw(donen);
  }
  return G_SOURCE_CONTINUE;
}

}  // namespace

GtkWidget* donenOlustur() {
  GtkWidget* donen = gtk_drawing_area_new();
  g_signal_connect(donen, "draw", G_CALLBACK(ciz), nullptr);
  gtk_widget_add_tick_callback(donen, kare, nullptr, nullptr);
  return donen;
}

}  // namespace nevo
