#include "app/tus_sirasi_gtk.hpp"

#include <webkit2/webkit2.h>

#include <deque>
#include <memory>

#include "temel/glib_gtk.hpp"

namespace nevo {
namespace {

struct OlayBirak {
  void operator()(GdkEvent* olay) const { gdk_event_free(olay); }
};
using OlayKopyasi = std::unique_ptr<GdkEvent, OlayBirak>;

// The key presses handed to the page that have not come back. A page that keeps its keys
// never returns them, so only the last few are remembered.
class TusSirasi {
 public:
  TusSirasi(GtkWindow* pencere, GtkWidget* web, PencereOlaylari& olaylar)
      : pencere_(pencere), web_(web), olaylar_(olaylar) {}
  TusSirasi(const TusSirasi&) = delete;
  TusSirasi& operator=(const TusSirasi&) = delete;

  gboolean basildi(GdkEventKey* olay) {
    if (geriAl(olay)) return geriGeldi(olay);
    if (!(olay->state & GDK_CONTROL_MASK) || gtk_window_get_focus(pencere_) != web_ ||
        !olaylar_.tusOnceSayfaya()) {
      return FALSE;
    }
    bekleyenler_.emplace_back(gdk_event_copy(reinterpret_cast<GdkEvent*>(olay)));
    if (bekleyenler_.size() > EN_COK) bekleyenler_.pop_front();
    gtk_widget_event(web_, reinterpret_cast<GdkEvent*>(olay));
    return TRUE;
  }

  // The page will not answer the keys it was given: their accelerators act now.
  void yanitKesildi() {
    auto bekleyenler = std::move(bekleyenler_);
    bekleyenler_.clear();
    for (auto& olay : bekleyenler) gtk_window_activate_key(pencere_, &olay->key);
  }

 private:
  static constexpr std::size_t EN_COK = 8;

  static bool ayni(const GdkEventKey& a, const GdkEventKey& b) {
    return a.time == b.time && a.hardware_keycode == b.hardware_keycode && a.state == b.state &&
           a.keyval == b.keyval;
  }

  bool geriAl(const GdkEventKey* olay) {
    for (auto i = bekleyenler_.begin(); i != bekleyenler_.end(); ++i) {
      if (ayni((*i)->key, *olay)) {
        bekleyenler_.erase(i);
        return true;
      }
    }
    return false;
  }

  // The page left the key alone. The web view forwards the next key it sees instead of
  // giving it to the page, so it must see this one even when an accelerator takes it.
  gboolean geriGeldi(GdkEventKey* olay) {
    gtk_widget_event(web_, reinterpret_cast<GdkEvent*>(olay));
    gtk_window_activate_key(pencere_, olay);
    return TRUE;
  }

  GtkWindow* pencere_;
  GtkWidget* web_;
  PencereOlaylari& olaylar_;
  std::deque<OlayKopyasi> bekleyenler_;
};

}  // namespace

void tuslariOnceSayfayaVer(GtkWindow* pencere, GtkWidget* web, PencereOlaylari& olaylar) {
  auto sira = std::make_shared<TusSirasi>(pencere, web, olaylar);
  Sinyal<gboolean(GtkWidget*, GdkEventKey*)>::bagla(
      pencere, "key-press-event",
      [sira](GtkWidget*, GdkEventKey* olay) { return sira->basildi(olay); });
  Sinyal<void(WebKitWebView*, GParamSpec*)>::bagla(
      web, "notify::is-web-process-responsive", [sira](WebKitWebView* w, GParamSpec*) {
        if (!webkit_web_view_get_is_web_process_responsive(w)) sira->yanitKesildi();
      });
}

}  // namespace nevo
