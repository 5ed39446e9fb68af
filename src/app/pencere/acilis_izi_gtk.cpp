#include "app/pencere/acilis_izi_gtk.hpp"

#include <webkit2/webkit2.h>

#include "temel/acilis_izi.hpp"

namespace nevo {
namespace {

struct Durum {
  bool yanitGeldi = false;
  bool cizildi = false;
};

gboolean eslendi(GtkWidget*, GdkEvent*, gpointer) {
  acilisIsareti("esleme");
  return FALSE;
}

void yuklemeDegisti(WebKitWebView*, WebKitLoadEvent olay, gpointer veri) {
  if (olay != WEBKIT_LOAD_COMMITTED) return;
  static_cast<Durum*>(veri)->yanitGeldi = true;
  acilisIsareti("yanit");
}

gboolean cizim(GtkWidget*, cairo_t*, gpointer veri) {
  auto* durum = static_cast<Durum*>(veri);
  if (durum->yanitGeldi && !durum->cizildi) {
    durum->cizildi = true;
    acilisIsareti("sayfa cizimi");
  }
  return FALSE;
}

}  // namespace

void acilisIziniBagla(GtkWidget* pencere, GtkWidget* web) {
  if (!acilisIzi().acik()) return;
  auto* durum = new Durum;
  g_object_set_data_full(
      G_OBJECT(web), "nevo-acilis-izi", durum, +[](gpointer d) { delete static_cast<Durum*>(d); });
  g_signal_connect(pencere, "map-event", G_CALLBACK(eslendi), nullptr);
  g_signal_connect(web, "load-changed", G_CALLBACK(yuklemeDegisti), durum);
  g_signal_connect_after(web, "draw", G_CALLBACK(cizim), durum);
}

}  // namespace nevo
