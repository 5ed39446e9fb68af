#include "app/pencere/tus_komutlari_gtk.hpp"

#include <string>
#include <vector>

#include "app/pencere/tus_komutlari.hpp"
#include "temel/glib_gtk.hpp"

namespace nevo {
namespace {

// The accelerators that type `karakter` with Control: its own key and the keypad's,
// whichever key of the layout produces it.
std::vector<std::string> hizlandiricilar(const std::string& karakter) {
  const gunichar harf = g_utf8_get_char(karakter.c_str());
  std::vector<std::string> sonuc{std::string("<Control>") +
                                 gdk_keyval_name(gdk_unicode_to_keyval(harf))};
  for (guint tus = GDK_KEY_KP_Space; tus <= GDK_KEY_KP_9; ++tus) {
    if (gdk_keyval_to_unicode(tus) == harf)
      sonuc.push_back(std::string("<Control>") + gdk_keyval_name(tus));
  }
  return sonuc;
}

void komutEkle(GtkApplication* uygulama, const TusKomutu& komut, PencereOlaylari& olaylar) {
  auto eylem = sahiplen(g_simple_action_new(komut.eylem.c_str(), nullptr));
  Sinyal<void(GSimpleAction*, GVariant*)>::bagla(
      eylem.get(), "activate",
      [&olaylar, ad = komut.eylem](GSimpleAction*, GVariant*) { olaylar.tusKomutu(ad); });
  g_action_map_add_action(G_ACTION_MAP(uygulama), G_ACTION(eylem.get()));
  std::vector<std::string> tuslar;
  for (const auto& k : komut.karakterler) {
    for (auto& h : hizlandiricilar(k)) tuslar.push_back(std::move(h));
  }
  gtk_application_set_accels_for_action(uygulama, ("app." + komut.eylem).c_str(),
                                        metinDizisi(tuslar).data());
}

// A touchpad scrolls in fractions: each whole step of them zooms once.
class TekerYakinlastirma {
 public:
  explicit TekerYakinlastirma(PencereOlaylari& olaylar) : olaylar_(olaylar) {}

  gboolean kaydirildi(GdkEventScroll* olay) {
    if (!(olay->state & GDK_CONTROL_MASK)) return FALSE;
    double adim = 0;
    if (olay->direction == GDK_SCROLL_UP) adim = -1;
    if (olay->direction == GDK_SCROLL_DOWN) adim = 1;
    if (olay->direction == GDK_SCROLL_SMOOTH) adim = olay->delta_y;
    birikim_ += adim;
    while (birikim_ <= -1) {
      birikim_ += 1;
      olaylar_.tusKomutu(eylem::YAKINLASTIR);
    }
    while (birikim_ >= 1) {
      birikim_ -= 1;
      olaylar_.tusKomutu(eylem::UZAKLASTIR);
    }
    return TRUE;
  }

 private:
  PencereOlaylari& olaylar_;
  double birikim_ = 0;
};

}  // namespace

void tusKomutlariniKur(GtkApplication* uygulama, GtkWidget* web, PencereOlaylari& olaylar) {
  for (const auto& komut : tusKomutlari()) komutEkle(uygulama, komut, olaylar);
  gtk_widget_add_events(web, GDK_SCROLL_MASK | GDK_SMOOTH_SCROLL_MASK);
  Sinyal<gboolean(GtkWidget*, GdkEventScroll*)>::bagla(
      web, "scroll-event",
      [teker = std::make_shared<TekerYakinlastirma>(olaylar)](GtkWidget*, GdkEventScroll* olay) {
        return teker->kaydirildi(olay);
      });
}

}  // namespace nevo
