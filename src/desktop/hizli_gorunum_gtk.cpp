#include <gdk/gdkx.h>
#include <gtk/gtk.h>

#include <functional>
#include <string>

#include "desktop/hizli_gorunum.hpp"
#include "temel/glib_gtk.hpp"

namespace nevo {
namespace {

constexpr int GENISLIK = static_cast<int>(HizliPanelYerlesimi::pencere.en);
constexpr int YUKSEKLIK = static_cast<int>(HizliPanelYerlesimi::pencere.boy);

// The panel's corner radius comes from its layout.
std::string stilMetni() {
  return ".nevo-hizli { background-color: rgba(40, 40, 44, 0.86); border-radius: " +
         std::to_string(static_cast<int>(HizliPanelYerlesimi::koseYaricapi)) + "px; }" + R"(
.nevo-hizli entry { font-size: 20px; background: none; border: none; box-shadow: none;
  color: #f2f2f2; padding: 0; min-height: 38px; }
)";
}

// Under X11 a keyboard grab (the hot key's own, while it is held) makes GTK report the
// focus gone although it never left; the server knows where the input focus really is.
bool odakBizdeX11(GdkDisplay* ekran) {
  Window odak = None;
  int geriDonus = 0;
  XGetInputFocus(GDK_DISPLAY_XDISPLAY(ekran), &odak, &geriDonus);
  return odak != None && odak != PointerRoot &&
         gdk_x11_window_lookup_for_display(ekran, odak) != nullptr;
}

bool odakBizde(GtkWidget* pencere) {
  GdkDisplay* ekran = gtk_widget_get_display(pencere);
  if (GDK_IS_X11_DISPLAY(ekran)) return odakBizdeX11(ekran);
  bool bizde = false;
  GList* hepsi = gtk_window_list_toplevels();
  for (GList* p = hepsi; p != nullptr; p = p->next) {
    if (gtk_window_is_active(GTK_WINDOW(p->data))) bizde = true;
  }
  g_list_free(hepsi);
  return bizde;
}

// The quick-entry window: undecorated, rounded and translucent, above the others and out
// of the task bar. Escape hides it, and so does the focus going to another application.
class HizliGorunumGtk final : public HizliGorunum {
 public:
  HizliGorunumGtk() = default;
  HizliGorunumGtk(const HizliGorunumGtk&) = delete;
  HizliGorunumGtk& operator=(const HizliGorunumGtk&) = delete;
  ~HizliGorunumGtk() override {
    if (pencere_) gtk_widget_destroy(GTK_WIDGET(pencere_.get()));
  }

  void gonderildiAyarla(std::function<void()> gonderildi) override {
    gonderildi_ = std::move(gonderildi);
  }
  bool gorunur() const override {
    return pencere_ && gtk_widget_get_visible(GTK_WIDGET(pencere_.get()));
  }
  void goster() override;
  void gizle() override {
    if (pencere_) gtk_widget_hide(GTK_WIDGET(pencere_.get()));
  }
  std::string metin() const override { return alan_ ? gtk_entry_get_text(alan_) : std::string(); }
  void metinYaz(const std::string& metin) override {
    if (alan_) gtk_entry_set_text(alan_, metin.c_str());
  }

 private:
  void kur();
  void ortala();
  void odakDegisti();

  GNesne<GtkWindow> pencere_;
  GtkEntry* alan_ = nullptr;
  std::function<void()> gonderildi_;
  SinyalBaglantilari baglantilar_;
};

void HizliGorunumGtk::kur() {
  pencere_ = paylas(GTK_WINDOW(gtk_window_new(GTK_WINDOW_TOPLEVEL)));
  GtkWindow* p = pencere_.get();
  gtk_window_set_title(p, HizliPanelYerlesimi::ad);  // never shown: no title bar
  gtk_window_set_decorated(p, FALSE);
  gtk_window_set_resizable(p, FALSE);
  gtk_window_set_keep_above(p, TRUE);
  gtk_window_set_skip_taskbar_hint(p, TRUE);
  gtk_window_set_skip_pager_hint(p, TRUE);
  gtk_window_set_type_hint(p, GDK_WINDOW_TYPE_HINT_DIALOG);
  gtk_window_set_default_size(p, GENISLIK, YUKSEKLIK);
  gtk_widget_set_size_request(GTK_WIDGET(p), GENISLIK, YUKSEKLIK);
  gtk_widget_set_app_paintable(GTK_WIDGET(p), TRUE);
  if (GdkVisual* rgba = gdk_screen_get_rgba_visual(gtk_widget_get_screen(GTK_WIDGET(p)))) {
    gtk_widget_set_visual(GTK_WIDGET(p), rgba);
  }
  GNesne<GtkCssProvider> stil = sahiplen(gtk_css_provider_new());
  gtk_css_provider_load_from_data(stil.get(), stilMetni().c_str(), -1, nullptr);
  gtk_style_context_add_provider_for_screen(gtk_widget_get_screen(GTK_WIDGET(p)),
                                            GTK_STYLE_PROVIDER(stil.get()),
                                            GTK_STYLE_PROVIDER_PRIORITY_APPLICATION);
  Sinyal<gboolean(GtkWidget*, cairo_t*)>::bagla(p, "draw", [](GtkWidget*, cairo_t* c) -> gboolean {
    cairo_set_operator(c, CAIRO_OPERATOR_CLEAR);
    cairo_paint(c);
    return FALSE;
  });

  GtkWidget* zemin = gtk_box_new(GTK_ORIENTATION_VERTICAL, 0);
  gtk_style_context_add_class(gtk_widget_get_style_context(zemin), "nevo-hizli");
  GtkWidget* alan = gtk_entry_new();
  alan_ = GTK_ENTRY(alan);
  gtk_entry_set_placeholder_text(alan_, HizliPanelYerlesimi::yerTutucu);
  gtk_entry_set_has_frame(alan_, FALSE);
  constexpr auto yer = HizliPanelYerlesimi::alan;
  gtk_widget_set_margin_start(alan, static_cast<int>(yer.x));
  gtk_widget_set_margin_end(alan, GENISLIK - static_cast<int>(yer.x + yer.en));
  gtk_widget_set_margin_top(alan, YUKSEKLIK - static_cast<int>(yer.y + yer.boy));
  gtk_widget_set_margin_bottom(alan, static_cast<int>(yer.y));
  gtk_box_pack_start(GTK_BOX(zemin), alan, TRUE, TRUE, 0);
  gtk_container_add(GTK_CONTAINER(p), zemin);

  baglantilar_.bagla<void(GtkEntry*)>(alan_, "activate", [this](GtkEntry*) {
    if (gonderildi_) gonderildi_();
  });
  baglantilar_.bagla<gboolean(GtkWidget*, GdkEventKey*)>(
      p, "key-press-event", [this](GtkWidget*, GdkEventKey* olay) -> gboolean {
        if (olay->keyval != GDK_KEY_Escape) return FALSE;
        gizle();
        return TRUE;
      });
  baglantilar_.bagla<void(GObject*, GParamSpec*)>(p, "notify::is-active",
                                                  [this](GObject*, GParamSpec*) { odakDegisti(); });
  Sinyal<gboolean(GtkWidget*, GdkEvent*)>::bagla(p, "delete-event",
                                                 [](GtkWidget* w, GdkEvent*) -> gboolean {
                                                   gtk_widget_hide(w);
                                                   return TRUE;
                                                 });
}

// The application lost the focus when none of its windows has it any more; the focus
// moving to the main window keeps the panel.
void HizliGorunumGtk::odakDegisti() {
  if (!pencere_ || gtk_window_is_active(pencere_.get())) return;
  g_idle_add_full(
      G_PRIORITY_DEFAULT_IDLE,
      +[](gpointer veri) {
        auto* pencere = static_cast<GtkWidget*>(veri);
        if (gtk_widget_get_visible(pencere) && !odakBizde(pencere)) gtk_widget_hide(pencere);
        return G_SOURCE_REMOVE;
      },
      g_object_ref(pencere_.get()), g_object_unref);
}

void HizliGorunumGtk::ortala() {
  GdkDisplay* ekran = gtk_widget_get_display(GTK_WIDGET(pencere_.get()));
  GdkMonitor* monitor = gdk_display_get_primary_monitor(ekran);
  if (monitor == nullptr) monitor = gdk_display_get_monitor(ekran, 0);
  if (monitor == nullptr) return;
  GdkRectangle alan;
  gdk_monitor_get_workarea(monitor, &alan);
  gtk_window_move(pencere_.get(), alan.x + (alan.width - GENISLIK) / 2,
                  alan.y + (alan.height - YUKSEKLIK) / 2);
}

void HizliGorunumGtk::goster() {
  if (!pencere_) kur();
  GtkWindow* p = pencere_.get();
  ortala();
  gtk_widget_show_all(GTK_WIDGET(p));
  gtk_window_present_with_time(p, gtk_get_current_event_time());
  gtk_widget_grab_focus(GTK_WIDGET(alan_));
}

}  // namespace

std::unique_ptr<HizliGorunum> hizliGorunumOlustur() { return std::make_unique<HizliGorunumGtk>(); }

}  // namespace nevo
