#include "app/pencere/pencere_gtk.hpp"

#include <gdk/gdkwayland.h>

#include <cmath>

#include "app/pencere/serit.hpp"
#include "temel/kaynaklar.hpp"

namespace nevo {
namespace {

int tam(double deger) { return static_cast<int>(std::lround(deger)); }

// The translucent dark backdrop under the page, which shows wherever the page paints
// nothing.
void arkaPlanCiz(GtkWidget* pencere) {
  GdkVisual* rgba = gdk_screen_get_rgba_visual(gtk_widget_get_screen(pencere));
  if (rgba != nullptr) gtk_widget_set_visual(pencere, rgba);
  gtk_widget_set_app_paintable(pencere, TRUE);
  Sinyal<gboolean(GtkWidget*, cairo_t*)>::bagla(pencere, "draw", [](GtkWidget*, cairo_t* cr) {
    cairo_set_operator(cr, CAIRO_OPERATOR_SOURCE);
    cairo_set_source_rgba(cr, 0.09, 0.09, 0.11, 0.86);
    cairo_paint(cr);
    return FALSE;
  });
}

}  // namespace

PencereGtk::PencereGtk(GtkApplication* uygulama, const PencereTasarimi& tasarim)
    : pencere_(paylas(gtk_window_new(GTK_WINDOW_TOPLEVEL))),
      enKucuk_(tasarim.enKucuk),
      hedef_(tasarim.olcu) {
  GtkWindow* p = pencere();
  gtk_window_set_application(p, uygulama);
  gtk_window_set_title(p, tasarim.baslik.c_str());
  gtk_window_set_decorated(p, FALSE);
  gtk_window_set_resizable(p, FALSE);
  if (auto simge = kaynakYolu(PENCERE_SIMGESI))
    gtk_window_set_icon_from_file(p, simge->c_str(), nullptr);
  arkaPlanCiz(GTK_WIDGET(p));
  kap_ = GTK_OVERLAY(gtk_overlay_new());
  gtk_widget_set_size_request(GTK_WIDGET(kap_), tam(hedef_.en), tam(hedef_.boy));
  gtk_container_add(GTK_CONTAINER(p), GTK_WIDGET(kap_));
  baglantilar_.bagla<gboolean(GtkWidget*, GdkEvent*)>(p, "delete-event",
                                                      [this](GtkWidget*, GdkEvent*) {
                                                        kapat();
                                                        return TRUE;
                                                      });
  baglantilar_.bagla<gboolean(GtkWidget*, GdkEventWindowState*)>(
      p, "window-state-event", [this](GtkWidget*, GdkEventWindowState* olay) {
        durum_ = olay->new_window_state;
        return FALSE;
      });
}

void PencereGtk::boyutUygula(Olcu olcu) {
  if (gtk_window_get_resizable(pencere())) {
    gtk_window_resize(pencere(), tam(olcu.en), tam(olcu.boy));
  } else {
    gtk_widget_set_size_request(GTK_WIDGET(kap_), tam(olcu.en), tam(olcu.boy));
  }
}

void PencereGtk::boyutlanabilir(bool evet) {
  if (evet) gtk_widget_set_size_request(GTK_WIDGET(kap_), tam(enKucuk_.en), tam(enKucuk_.boy));
  gtk_window_set_resizable(pencere(), evet);
}

// The core asks for full screen only where it allows it; a window that loses the right
// leaves full screen.
void PencereGtk::tamEkranIzni(bool evet) {
  if (!evet && (durum_ & GDK_WINDOW_STATE_FULLSCREEN)) gtk_window_unfullscreen(pencere());
}

void PencereGtk::tamEkranDegistir() {
  if (durum_ & GDK_WINDOW_STATE_FULLSCREEN) {
    gtk_window_unfullscreen(pencere());
  } else {
    gtk_window_fullscreen(pencere());
  }
}

void PencereGtk::icerikBoyutu(Olcu olcu) {
  hedef_ = olcu;
  boyutUygula(olcu);
}

GdkRectangle PencereGtk::calismaAlani() const {
  GdkDisplay* ekran = gtk_widget_get_display(GTK_WIDGET(pencere()));
  GdkWindow* gdk = gtk_widget_get_window(GTK_WIDGET(pencere()));
  GdkMonitor* monitor = gdk != nullptr ? gdk_display_get_monitor_at_window(ekran, gdk)
                                       : gdk_display_get_primary_monitor(ekran);
  if (monitor == nullptr) monitor = gdk_display_get_monitor(ekran, 0);
  GdkRectangle alan{0, 0, 0, 0};
  if (monitor != nullptr) gdk_monitor_get_workarea(monitor, &alan);
  return alan;
}

void PencereGtk::ortala() {
  const GdkRectangle alan = calismaAlani();
  gtk_window_move(pencere(), alan.x + (alan.width - tam(hedef_.en)) / 2,
                  alan.y + (alan.height - tam(hedef_.boy)) / 2);
}

void PencereGtk::oneGetir() { gtk_window_present(pencere()); }

bool PencereGtk::gorunur() const {
  return gtk_widget_get_visible(GTK_WIDGET(pencere())) && !(durum_ & GDK_WINDOW_STATE_ICONIFIED);
}

void PencereGtk::kucult() { gtk_window_iconify(pencere()); }

Cerceve PencereGtk::cerceve() const {
  int x = 0, y = 0, en = 0, boy = 0;
  gtk_window_get_position(pencere(), &x, &y);
  gtk_window_get_size(pencere(), &en, &boy);
  return {double(x), double(y), double(en), double(boy)};
}

std::optional<Cerceve> PencereGtk::ekranAlani() const {
  if (!gtk_widget_get_mapped(GTK_WIDGET(pencere()))) return std::nullopt;
  const GdkRectangle a = calismaAlani();
  return Cerceve{double(a.x), double(a.y), double(a.width), double(a.height)};
}

// From the current frame to the target along the zoom's curve; the last step lands on
// the target. Where the compositor places windows (Wayland) a window cannot move itself:
// the frame that fills the work area is the maximised window, and leaving it restores.
void PencereGtk::cerceveyiCanlandir(Cerceve hedef, double sure) {
  if (GDK_IS_WAYLAND_DISPLAY(gtk_widget_get_display(GTK_WIDGET(pencere())))) {
    if (hedef == ekranAlani()) {
      gtk_window_maximize(pencere());
    } else {
      gtk_window_unmaximize(pencere());
    }
    return;
  }
  const Cerceve baslangic = cerceve();
  canlandirma_.baslat(sure, [this, baslangic, hedef](double oran) {
    const double k = Serit::BUYUTME_EGRISI(oran);
    auto ara = [k](double a, double b) { return a + (b - a) * k; };
    gtk_window_move(pencere(), tam(ara(baslangic.x, hedef.x)), tam(ara(baslangic.y, hedef.y)));
    boyutUygula({ara(baslangic.en, hedef.en), ara(baslangic.boy, hedef.boy)});
  });
}

void PencereGtk::kapat() { gtk_widget_hide(GTK_WIDGET(pencere())); }

}  // namespace nevo
