// The container `Kap` on Linux: the overlay whose children the core's `yerlestir` places,
// and the factory that builds the window's parts in the design's order.
#include <webkit2/webkit2.h>

#include "app/pencere_gtk.hpp"
#include "app/perde_gtk.hpp"
#include "app/serit_gtk.hpp"
#include "app/web_gorunum_gtk.hpp"
#include "app/yerlesim.hpp"

namespace nevo {
namespace {

constexpr const char* DUGME_STILI =
    ".nevo-dugme{min-width:22px;min-height:22px;padding:0;border-radius:11px;border:none;"
    "box-shadow:none;background:rgba(24,24,30,0.55);color:rgba(240,240,245,0.85);}"
    ".nevo-dugme:hover{background:rgba(60,60,72,0.85);color:#fff;}";

void dugmeStiliYukle() {
  auto stil = sahiplen(gtk_css_provider_new());
  gtk_css_provider_load_from_data(stil.get(), DUGME_STILI, -1, nullptr);
  gtk_style_context_add_provider_for_screen(gdk_screen_get_default(),
                                            GTK_STYLE_PROVIDER(stil.get()),
                                            GTK_STYLE_PROVIDER_PRIORITY_APPLICATION);
}

std::string dekorasyonDuzeni() {
  gchar* duzen = nullptr;
  g_object_get(gtk_settings_get_default(), "gtk-decoration-layout", &duzen, nullptr);
  GMetin sahip(duzen);
  return sahip ? sahip.get() : "";
}

// Part 1.2's `yerlestir`, run by the overlay at every allocation.
// The web view is the main child and fills the container, as `yerlestir` says.
void yerlesimiBagla(GtkOverlay* kap, GtkWidget* serit, GtkWidget* perde, double seritBoyu) {
  Sinyal<gboolean(GtkOverlay*, GtkWidget*, GdkRectangle*)>::bagla(
      kap, "get-child-position",
      [=](GtkOverlay* ust, GtkWidget* cocuk, GdkRectangle* yer) -> gboolean {
        const double en = gtk_widget_get_allocated_width(GTK_WIDGET(ust));
        const double boy = gtk_widget_get_allocated_height(GTK_WIDGET(ust));
        const auto y = yerlestir({en, boy}, boy - seritBoyu);
        Cerceve c;
        if (cocuk == perde) c = y.perde;
        else if (cocuk == serit) c = y.serit;
        else return FALSE;
        c = ustSoldan(c, boy);
        *yer = {int(c.x), int(c.y), int(c.en), int(c.boy)};
        return TRUE;
      });
}

void dugmeleriEkle(GtkOverlay* kap, GtkApplication* uygulama, PencereOlaylari& olaylar,
                   Pencere& pencere) {
  dugmeStiliYukle();
  const auto dugmeler = pencereDugmeleri(
      dugmeDuzeni(dekorasyonDuzeni()), gtk_application_get_menubar(uygulama),
      [&olaylar, &pencere](Dugme d) {
        if (d == Dugme::Kapat) pencere.kapat();
        if (d == Dugme::Kucult) pencere.kucult();
        if (d == Dugme::Buyut) olaylar.buyutDugmesi();
      });
  // Above the curtain, as the window's own buttons are on macOS.
  gtk_overlay_add_overlay(kap, dugmeler.sol);
  gtk_overlay_add_overlay(kap, dugmeler.sag);
}

}  // namespace

PencereParcalari PencereKurucuGtk::kur(const PencereTasarimi& tasarim, PencereOlaylari& olaylar) {
  auto pencere = std::make_unique<PencereGtk>(uygulama_, tasarim);
  auto web = std::make_unique<WebGorunumGtk>(tasarim, olaylar);
  auto perde = std::make_unique<PerdeGtk>();
  auto serit = std::make_unique<SeritGtk>(olaylar);
  GtkOverlay* kap = pencere->kap();
  // The backdrop is the window's own paint (pencere_gtk.cpp) and the web view the
  // overlay's main child: an overlay child's window stacked above the web view's would
  // not stay above it once the page paints.
  for (Katman katman : tasarim.katmanlar) {
    switch (katman) {
      case Katman::Arka: break;
      case Katman::Web: gtk_container_add(GTK_CONTAINER(kap), web->parca()); break;
      case Katman::Serit: gtk_overlay_add_overlay(kap, serit->parca()); break;
      case Katman::Perde: gtk_overlay_add_overlay(kap, perde->parca()); break;
    }
  }
  yerlesimiBagla(kap, serit->parca(), perde->parca(), tasarim.serit);
  dugmeleriEkle(kap, uygulama_, olaylar, *pencere);
  pencere->seridiTut(std::move(serit));
  gtk_widget_show_all(GTK_WIDGET(kap));
  gtk_widget_grab_focus(web->parca());
  return {std::move(pencere), std::move(web), std::move(perde)};
}

}  // namespace nevo
