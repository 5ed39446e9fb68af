#include <gdk/gdkx.h>
#include <gtk/gtk.h>

#include <string>
#include <utility>

#include "desktop/kisayol/kisayol_levhasi.hpp"
#include "desktop/kisayol/tus_cevirisi_gtk.hpp"
#include "temel/glib_gtk.hpp"
#include "temel/pencere_gtk.hpp"

namespace nevo {
namespace {

// Sizes in pixels, as the window's points at a scale of one.
constexpr int GENISLIK = static_cast<int>(KaydediciYerlesimi::pencere.en);
constexpr int YUKSEKLIK = static_cast<int>(KaydediciYerlesimi::pencere.boy);

GtkWidget* yazi(const char* metin, const char* stil) {
  GtkWidget* etiket = gtk_label_new(metin);
  gtk_label_set_xalign(GTK_LABEL(etiket), 0);
  // The frame decides the width: a long text never widens the window.
  gtk_label_set_max_width_chars(GTK_LABEL(etiket), 1);
  gtk_label_set_ellipsize(GTK_LABEL(etiket), PANGO_ELLIPSIZE_END);
  gtk_style_context_add_class(gtk_widget_get_style_context(etiket), stil);
  return etiket;
}

// Placed as on a surface whose origin is at the bottom left.
void yerlestir(GtkFixed* zemin, GtkWidget* oge, const Cerceve& c) {
  const auto x = static_cast<int>(c.x), y = static_cast<int>(c.y);
  const auto en = static_cast<int>(c.en), boy = static_cast<int>(c.boy);
  gtk_widget_set_size_request(oge, en, boy);
  gtk_fixed_put(zemin, oge, x, YUKSEKLIK - y - boy);
}

constexpr const char* STIL = R"(
.nevo-baslik { font-size: 15px; font-weight: 600; }
.nevo-ipucu { font-size: 12px; opacity: 0.6; }
.nevo-uyari { font-size: 12px; color: #e0312b; }
)";

// The recorder: a modal dialog over the window it is given, whose own key handler sees
// every key press first, before any accelerator or widget of the dialog.
class KisayolLevhasiGtk final : public KisayolLevhasi {
 public:
  KisayolLevhasiGtk() = default;
  KisayolLevhasiGtk(const KisayolLevhasiGtk&) = delete;
  KisayolLevhasiGtk& operator=(const KisayolLevhasiGtk&) = delete;
  ~KisayolLevhasiGtk() override { kapat(); }

  void ac(Pencere&, const KisayolMetinleri& metinler, Olaylar olaylar) override;
  void uyariYaz(const std::string& uyari) override {
    if (uyari_) gtk_label_set_text(uyari_, uyari.c_str());
  }
  void kapat() override {
    olaylar_ = {};
    uyari_ = nullptr;
    klavyeyiBirak();
    if (auto levha = std::move(levha_)) gtk_widget_destroy(GTK_WIDGET(levha.get()));
  }

 private:
  void klavyeyiTut(GtkWidget* levha);
  void klavyeyiBirak();

  GNesne<GtkWindow> levha_;
  GdkSeat* tutulan_ = nullptr;
  GtkLabel* uyari_ = nullptr;
  Olaylar olaylar_;
  SinyalBaglantilari baglantilar_;
};

// Under X11 a key combination another client has grabbed goes to that client, so the
// recorder would never see it: while it shows, it takes the whole keyboard (an active grab,
// before which no passive grab fires), receives the combination and can say it is taken.
void KisayolLevhasiGtk::klavyeyiTut(GtkWidget* levha) {
  GdkWindow* pencere = gtk_widget_get_window(levha);
  if (pencere == nullptr || !GDK_IS_X11_DISPLAY(gdk_window_get_display(pencere))) return;
  GdkSeat* koltuk = gdk_display_get_default_seat(gdk_window_get_display(pencere));
  if (gdk_seat_grab(koltuk, pencere, GDK_SEAT_CAPABILITY_KEYBOARD, TRUE, nullptr, nullptr, nullptr,
                    nullptr) == GDK_GRAB_SUCCESS) {
    tutulan_ = koltuk;
  }
}

void KisayolLevhasiGtk::klavyeyiBirak() {
  if (GdkSeat* koltuk = std::exchange(tutulan_, nullptr)) gdk_seat_ungrab(koltuk);
}

void KisayolLevhasiGtk::ac(Pencere& ustunde, const KisayolMetinleri& metinler, Olaylar olaylar) {
  kapat();
  olaylar_ = std::move(olaylar);
  levha_ = paylas(GTK_WINDOW(gtk_window_new(GTK_WINDOW_TOPLEVEL)));
  GtkWindow* p = levha_.get();
  gtk_window_set_title(p, metinler.baslik.c_str());
  gtk_window_set_type_hint(p, GDK_WINDOW_TYPE_HINT_DIALOG);
  gtk_window_set_modal(p, TRUE);
  gtk_window_set_transient_for(p, gtkPenceresi(ustunde));
  gtk_window_set_destroy_with_parent(p, TRUE);
  gtk_window_set_resizable(p, FALSE);
  gtk_window_set_position(p, GTK_WIN_POS_CENTER_ON_PARENT);
  gtk_window_set_default_size(p, GENISLIK, YUKSEKLIK);

  GNesne<GtkCssProvider> stil = sahiplen(gtk_css_provider_new());
  gtk_css_provider_load_from_data(stil.get(), STIL, -1, nullptr);
  gtk_style_context_add_provider_for_screen(gtk_widget_get_screen(GTK_WIDGET(p)),
                                            GTK_STYLE_PROVIDER(stil.get()),
                                            GTK_STYLE_PROVIDER_PRIORITY_APPLICATION);
  auto* zemin = GTK_FIXED(gtk_fixed_new());
  gtk_widget_set_size_request(GTK_WIDGET(zemin), GENISLIK, YUKSEKLIK);
  yerlestir(zemin, yazi(metinler.ustYazi.c_str(), "nevo-baslik"), KaydediciYerlesimi::baslik);
  yerlestir(zemin, yazi(metinler.ipucu.c_str(), "nevo-ipucu"), KaydediciYerlesimi::ipucu);
  GtkWidget* uyari = yazi("", "nevo-uyari");
  gtk_label_set_line_wrap(GTK_LABEL(uyari), TRUE);
  gtk_label_set_line_wrap_mode(GTK_LABEL(uyari), PANGO_WRAP_WORD);
  gtk_label_set_lines(GTK_LABEL(uyari), 2);
  gtk_label_set_yalign(GTK_LABEL(uyari), 0);
  uyari_ = GTK_LABEL(uyari);
  yerlestir(zemin, uyari, KaydediciYerlesimi::uyari);
  GtkWidget* vazgec = gtk_button_new_with_label(metinler.vazgec.c_str());
  gtk_widget_set_can_focus(vazgec, FALSE);
  yerlestir(zemin, vazgec, KaydediciYerlesimi::vazgec);
  gtk_container_add(GTK_CONTAINER(p), GTK_WIDGET(zemin));

  baglantilar_.bagla<void(GtkButton*)>(vazgec, "clicked", [this](GtkButton*) {
    if (auto vazgecildi = olaylar_.vazgecildi) vazgecildi();
  });
  baglantilar_.bagla<gboolean(GtkWidget*, GdkEvent*)>(p, "delete-event",
                                                      [this](GtkWidget*, GdkEvent*) -> gboolean {
                                                        if (auto vazgecildi = olaylar_.vazgecildi)
                                                          vazgecildi();
                                                        return TRUE;
                                                      });
  baglantilar_.bagla<gboolean(GtkWidget*, GdkEventKey*)>(
      p, "key-press-event", [this](GtkWidget*, GdkEventKey* olay) -> gboolean {
        if (olay->is_modifier) return TRUE;
        const auto tus = tusBasimiCevir(*olay);
        if (tus && olaylar_.basildi) {
          auto basildi = olaylar_.basildi;  // the press may close the window
          basildi(*tus);
        }
        return TRUE;
      });
  baglantilar_.bagla<gboolean(GtkWidget*, GdkEvent*)>(p, "map-event",
                                                      [this](GtkWidget* levha, GdkEvent*) {
                                                        klavyeyiTut(levha);
                                                        return FALSE;
                                                      });
  gtk_widget_show_all(GTK_WIDGET(p));
  gtk_window_present(p);
}

}  // namespace

std::unique_ptr<KisayolLevhasi> kisayolLevhasiOlustur() {
  return std::make_unique<KisayolLevhasiGtk>();
}

}  // namespace nevo
