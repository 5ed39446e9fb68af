// A bare WebKitGTK window of the main mode's size showing one address: the yardstick for
// the shell's launch-to-text time. With NEVO_ACILIS_IZI it writes the same launch marks as
// the shell, where it has them. Usage: nevo_ciplak_pencere ADDRESS
#include <gtk/gtk.h>
#include <webkit2/webkit2.h>

#include "app/pencere/acilis_izi_gtk.hpp"
#include "temel/acilis_izi.hpp"

namespace {

// The shell marks the end of the load in its core; the bare window has only this.
void yuklemeDegisti(WebKitWebView*, WebKitLoadEvent olay, gpointer) {
  if (olay == WEBKIT_LOAD_FINISHED) nevo::acilisIsareti("yuklendi");
}

}  // namespace

int main(int argc, char** argv) {
  nevo::acilisIsareti("main");
  gtk_init(&argc, &argv);
  nevo::acilisIsareti("gtk");
  if (argc < 2) return 2;
  GtkWidget* pencere = gtk_window_new(GTK_WINDOW_TOPLEVEL);
  gtk_window_set_title(GTK_WINDOW(pencere), "Ciplak");
  gtk_window_set_decorated(GTK_WINDOW(pencere), FALSE);
  gtk_window_set_default_size(GTK_WINDOW(pencere), 1080, 760);
  gtk_window_set_position(GTK_WINDOW(pencere), GTK_WIN_POS_CENTER);
  GtkWidget* web = webkit_web_view_new();
  nevo::acilisIsareti("web gorunumu");
  gtk_container_add(GTK_CONTAINER(pencere), web);
  g_signal_connect(pencere, "destroy", G_CALLBACK(gtk_main_quit), nullptr);
  nevo::acilisIziniBagla(pencere, web);
  g_signal_connect(web, "load-changed", G_CALLBACK(yuklemeDegisti), nullptr);
  webkit_web_view_load_uri(WEBKIT_WEB_VIEW(web), argv[1]);
  nevo::acilisIsareti("yukleme");
  gtk_widget_show_all(pencere);
  nevo::acilisIsareti("gosterildi");
  gtk_main();
  return 0;
}
