#include "app/pencere/dugmeler_gtk.hpp"

#include <string>
#include <vector>

#include "app/pencere/cizgi_gtk.hpp"
#include "app/pencere/dugme_simgesi.hpp"
#include "temel/glib_gtk.hpp"

namespace nevo {
namespace {

std::string dugmeStili() {
  const auto cap = std::to_string(static_cast<int>(DUGME_CAPI));
  const auto yaricap = std::to_string(static_cast<int>(DUGME_CAPI) / 2);
  return ".nevo-dugme{min-width:" + cap + "px;min-height:" + cap +
         "px;padding:0;border-radius:" + yaricap +
         "px;border:none;box-shadow:none;background:rgba(24,24,30,0.55);"
         "color:rgba(240,240,245,0.85);}"
         ".nevo-dugme:hover{background:rgba(60,60,72,0.85);color:#fff;}";
}

void dugmeStiliYukle() {
  auto stil = sahiplen(gtk_css_provider_new());
  gtk_css_provider_load_from_data(stil.get(), dugmeStili().c_str(), -1, nullptr);
  gtk_style_context_add_provider_for_screen(gdk_screen_get_default(),
                                            GTK_STYLE_PROVIDER(stil.get()),
                                            GTK_STYLE_PROVIDER_PRIORITY_APPLICATION);
}

constexpr int SIMGE_KENARI = 16;

// In the button's own colour, which follows the pointer's hover.
gboolean simgeyiCiz(GtkWidget* alan, cairo_t* cr, gpointer tur) {
  GdkRGBA renk;
  gtk_style_context_get_color(gtk_widget_get_style_context(alan), gtk_widget_get_state_flags(alan),
                              &renk);
  gdk_cairo_set_source_rgba(cr, &renk);
  const double kenar = kareKenari(alan);
  kalemAl(cr, simgeKalinligi(kenar));
  for (const auto& c : dugmeSimgesi(static_cast<Dugme>(GPOINTER_TO_INT(tur)), kenar)) {
    cizgiEkle(cr, c);
  }
  cairo_stroke(cr);
  return FALSE;
}

// Drawn by the shell: no icon theme is read before the window shows.
GtkWidget* simge(Dugme tur) {
  GtkWidget* alan = gtk_drawing_area_new();
  gtk_widget_set_size_request(alan, SIMGE_KENARI, SIMGE_KENARI);
  gtk_widget_set_halign(alan, GTK_ALIGN_CENTER);
  gtk_widget_set_valign(alan, GTK_ALIGN_CENTER);
  g_signal_connect(alan, "draw", G_CALLBACK(simgeyiCiz), GINT_TO_POINTER(static_cast<int>(tur)));
  return alan;
}

GtkWidget* dugme(Dugme tur, GMenuModel* menu, const DugmeEylemi& eylem) {
  GtkWidget* d = tur == Dugme::Menu ? gtk_menu_button_new() : gtk_button_new();
  if (GtkWidget* eski = gtk_bin_get_child(GTK_BIN(d))) gtk_widget_destroy(eski);
  gtk_container_add(GTK_CONTAINER(d), simge(tur));
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
  GtkWidget* kutu = gtk_box_new(GTK_ORIENTATION_HORIZONTAL, static_cast<int>(DUGME_ARALIGI));
  gtk_widget_set_halign(kutu, yan);
  gtk_widget_set_valign(kutu, GTK_ALIGN_START);
  gtk_widget_set_margin_top(kutu, static_cast<int>(KUME_USTU));
  gtk_widget_set_margin_start(kutu, static_cast<int>(KUME_KENARI));
  gtk_widget_set_margin_end(kutu, static_cast<int>(KUME_KENARI));
  for (Dugme d : dugmeler) gtk_container_add(GTK_CONTAINER(kutu), dugme(d, menu, eylem));
  return kutu;
}

}  // namespace

PencereDugmeleri pencereDugmeleri(const DugmeDuzeni& duzen, GMenuModel* menu, DugmeEylemi eylem) {
  dugmeStiliYukle();
  return {dugmeKutusu(duzen.sol, GTK_ALIGN_START, menu, eylem),
          dugmeKutusu(duzen.sag, GTK_ALIGN_END, menu, eylem)};
}

}  // namespace nevo
