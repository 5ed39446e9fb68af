// A bare WebKitGTK window of the main mode's size showing one address: the yardstick for
// the shell's launch-to-text time. Usage: nevo_ciplak_pencere ADDRESS
#include <gtk/gtk.h>
#include <webkit2/webkit2.h>

int main(int argc, char** argv) {
  gtk_init(&argc, &argv);
  if (argc < 2) return 2;
  GtkWidget* pencere = gtk_window_new(GTK_WINDOW_TOPLEVEL);
  gtk_window_set_title(GTK_WINDOW(pencere), "Ciplak");
  gtk_window_set_decorated(GTK_WINDOW(pencere), FALSE);
  gtk_window_set_default_size(GTK_WINDOW(pencere), 1080, 760);
  gtk_window_set_position(GTK_WINDOW(pencere), GTK_WIN_POS_CENTER);
  GtkWidget* web = webkit_web_view_new();
  gtk_container_add(GTK_CONTAINER(pencere), web);
  g_signal_connect(pencere, "destroy", G_CALLBACK(gtk_main_quit), nullptr);
  webkit_web_view_load_uri(WEBKIT_WEB_VIEW(web), argv[1]);
  gtk_widget_show_all(pencere);
  gtk_main();
  return 0;
}
