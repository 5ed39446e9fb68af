// The container `Kap` on Linux: the overlay whose children the core's `yerlestir` places,
// and the factory that builds the window's parts in the order the core gives.

#include "app/pencere/pencere_kurucu_gtk.hpp"

#include "app/pencere/acilis_izi_gtk.hpp"
#include "app/pencere/baglam_menusu_gtk.hpp"
#include "app/pencere/dugmeler_gtk.hpp"
#include "app/pencere/kap_yerlesimi_gtk.hpp"
#include "app/pencere/kenarlar_gtk.hpp"
#include "app/pencere/pencere_gtk.hpp"
#include "app/pencere/perde_gtk.hpp"
#include "app/pencere/serit_gtk.hpp"
#include "app/pencere/tus_komutlari_gtk.hpp"
#include "app/pencere/tus_sirasi_gtk.hpp"
#include "app/pencere/web_gorunum_gtk.hpp"
#include "app/pencere/yerlesim.hpp"

namespace nevo {
namespace {

bool tamEkranda(GtkWidget* parca) {
  GdkWindow* pencere = gtk_widget_get_window(gtk_widget_get_toplevel(parca));
  return pencere != nullptr && (gdk_window_get_state(pencere) & GDK_WINDOW_STATE_FULLSCREEN);
}

// The core's `yerlestir` for the strip and the curtain; the web view is the main child
// and fills the container, as `yerlestir` says. The undecorated window's title bar is the
// strip's band, which a window in full screen does not have.
void yerlesimiBagla(GtkOverlay* kap, GtkWidget* serit, GtkWidget* perde, double seritBoyu) {
  cocuklariYerlestir(kap, [=](GtkWidget* cocuk, Olcu olcu) {
    const double baslik = tamEkranda(GTK_WIDGET(kap)) ? 0 : seritBoyu;
    const auto y = yerlestir(olcu, olcu.boy - baslik);
    if (cocuk == perde) return std::optional(y.perde);
    if (cocuk == serit) return std::optional(y.serit);
    return std::optional<Cerceve>();
  });
}

// A pressed button is only reported; the core decides what it does.
void dugmeleriEkle(GtkOverlay* kap, GtkApplication* uygulama, const DugmeDuzeni& duzen,
                   PencereOlaylari& olaylar) {
  const auto dugmeler = pencereDugmeleri(duzen, gtk_application_get_menubar(uygulama),
                                         [&olaylar](Dugme d) { olaylar.pencereDugmesi(d); });
  // Above the curtain, as the window's own buttons are on macOS.
  gtk_overlay_add_overlay(kap, dugmeler.sol);
  gtk_overlay_add_overlay(kap, dugmeler.sag);
  // They go with the title bar in full screen, and the band is laid out anew.
  Sinyal<gboolean(GtkWidget*, GdkEventWindowState*)>::bagla(
      gtk_widget_get_toplevel(GTK_WIDGET(kap)), "window-state-event",
      [kap, sol = dugmeler.sol, sag = dugmeler.sag](GtkWidget*, GdkEventWindowState* olay) {
        if (!(olay->changed_mask & GDK_WINDOW_STATE_FULLSCREEN)) return FALSE;
        const bool gorunur = !(olay->new_window_state & GDK_WINDOW_STATE_FULLSCREEN);
        gtk_widget_set_visible(sol, gorunur);
        gtk_widget_set_visible(sag, gorunur);
        gtk_widget_queue_resize(GTK_WIDGET(kap));
        return FALSE;
      });
}

}  // namespace

// The core owns the window and the web view from the moment they are handed over, for
// as long as the application runs.
std::unique_ptr<Perde> PencereKurucuGtk::kur(const PencereTasarimi& tasarim,
                                             PencereOlaylari& olaylar,
                                             const WebKuruldu& webKuruldu) {
  auto pencereSahibi = std::make_unique<PencereGtk>(uygulama_, tasarim);
  auto webSahibi = std::make_unique<WebGorunumGtk>(tasarim, olaylar);
  PencereGtk* pencere = pencereSahibi.get();
  WebGorunumGtk* web = webSahibi.get();
  webKuruldu({std::move(pencereSahibi), std::move(webSahibi)});
  auto perde = std::make_unique<PerdeGtk>();
  auto serit = std::make_unique<SeritGtk>(olaylar);
  GtkOverlay* kap = pencere->kap();
  // The backdrop is the window's own paint (pencere_gtk.cpp) and the web view the
  // overlay's main child: an overlay child's window stacked above the web view's would
  // not stay above it once the page paints.
  for (Katman katman : tasarim.katmanlar) {
    switch (katman) {
      case Katman::Arka:
        break;
      case Katman::Web:
        gtk_container_add(GTK_CONTAINER(kap), web->parca());
        break;
      case Katman::Serit:
        gtk_overlay_add_overlay(kap, serit->parca());
        break;
      case Katman::Perde:
        gtk_overlay_add_overlay(kap, perde->parca());
        break;
    }
  }
  yerlesimiBagla(kap, serit->parca(), perde->parca(), tasarim.serit);
  dugmeleriEkle(kap, uygulama_, tasarim.dugmeler, olaylar);
  kenarlariEkle(pencere->pencere(), kap);
  tuslariOnceSayfayaVer(pencere->pencere(), web->parca(), olaylar);
  tusKomutlariniKur(uygulama_, web->parca(), olaylar);
  baglamMenusunuBagla(WEBKIT_WEB_VIEW(web->parca()), olaylar);
  acilisIziniBagla(GTK_WIDGET(pencere->pencere()), web->parca());
  pencere->seridiTut(std::move(serit));
  gtk_widget_show_all(GTK_WIDGET(kap));
  gtk_widget_grab_focus(web->parca());
  return perde;
}

std::string PencereKurucuGtk::dekorasyonDuzeni() const {
  gchar* duzen = nullptr;
  g_object_get(gtk_settings_get_default(), "gtk-decoration-layout", &duzen, nullptr);
  GMetin sahip(duzen);
  return sahip ? sahip.get() : "";
}

std::unique_ptr<PencereKurucu> pencereKurucuOlustur() {
  return std::make_unique<PencereKurucuGtk>(GTK_APPLICATION(g_application_get_default()));
}

}  // namespace nevo
