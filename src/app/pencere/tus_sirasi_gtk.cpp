#include "app/pencere/tus_sirasi_gtk.hpp"

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

// What tells one key press from another: the same press seen again is the web view
// handing it back.
struct TusImzasi {
  guint32 zaman;
  guint16 kod;
  guint durum;
  guint deger;
  bool operator==(const TusImzasi&) const = default;
};

TusImzasi imza(const GdkEventKey& olay) {
  return {olay.time, olay.hardware_keycode, olay.state, olay.keyval};
}

class TusSirasi : public std::enable_shared_from_this<TusSirasi> {
 public:
  TusSirasi(GtkWindow* pencere, GtkWidget* web, PencereOlaylari& olaylar)
      : pencere_(pencere), web_(web), olaylar_(olaylar) {}
  TusSirasi(const TusSirasi&) = delete;
  TusSirasi& operator=(const TusSirasi&) = delete;

  gboolean basildi(GdkEventKey* olay) {
    const TusImzasi bu = imza(*olay);
    for (auto i = gorulenler_.begin(); i != gorulenler_.end(); ++i) {
      if (i->tus == bu) {
        const bool bizden = i->bizden;
        gorulenler_.erase(i);
        return geriGeldi(olay, bizden);
      }
    }
    const bool sayfaya = (olay->state & GDK_CONTROL_MASK) &&
                         gtk_window_get_focus(pencere_) == web_ && olaylar_.tusOnceSayfaya();
    gorulenler_.push_back({bu, sayfaya});
    if (gorulenler_.size() > EN_COK) gorulenler_.pop_front();
    if (!sayfaya) return FALSE;
    bekleyenler_.emplace_back(gdk_event_copy(reinterpret_cast<GdkEvent*>(olay)));
    if (bekleyenler_.size() > EN_COK) bekleyenler_.pop_front();
    gtk_widget_event(web_, reinterpret_cast<GdkEvent*>(olay));
    yaniniSor(bu);
    return TRUE;
  }

  // The page will not answer the keys it was given: their accelerators act now.
  void yanitKesildi() {
    auto bekleyenler = std::move(bekleyenler_);
    bekleyenler_.clear();
    for (auto& olay : bekleyenler) gtk_window_activate_key(pencere_, &olay->key);
  }

 private:
  static constexpr std::size_t EN_COK = 16;

  // Forgets the keys handed over up to the one `bu` names: the page has had them.
  void cevaplandi(const TusImzasi& bu) {
    while (!bekleyenler_.empty() &&
           static_cast<gint32>(bekleyenler_.front()->key.time - bu.zaman) <= 0) {
      bekleyenler_.pop_front();
    }
  }

  // A script run after the key reaches the page after it, so its answer shows that the
  // page has had the key, also one it kept and that never comes back.
  void yaniniSor(const TusImzasi& bu) {
    struct Soru {
      std::weak_ptr<TusSirasi> sira;
      TusImzasi tus;
    };
    webkit_web_view_evaluate_javascript(
        WEBKIT_WEB_VIEW(web_), "0", -1, nullptr, nullptr, nullptr,
        +[](GObject* kaynak, GAsyncResult* sonuc, gpointer veri) {
          std::unique_ptr<Soru> soru(static_cast<Soru*>(veri));
          GError* hata = nullptr;
          auto deger = sahiplen(
              webkit_web_view_evaluate_javascript_finish(WEBKIT_WEB_VIEW(kaynak), sonuc, &hata));
          g_clear_error(&hata);
          if (auto sira = soru->sira.lock()) sira->cevaplandi(soru->tus);
        },
        new Soru{weak_from_this(), bu});
  }

  // A key press back from the web view: the page has answered every key up to this one,
  // so those handed to it before and not back were kept by it. When this one was handed
  // over here first, the page left it alone: the accelerator runs. The web view forwards
  // the next key it sees instead of giving it to the page, so it must see this one even
  // when an accelerator takes it.
  gboolean geriGeldi(GdkEventKey* olay, bool bizden) {
    cevaplandi(imza(*olay));
    if (!bizden) return FALSE;
    gtk_widget_event(web_, reinterpret_cast<GdkEvent*>(olay));
    gtk_window_activate_key(pencere_, olay);
    return TRUE;
  }

  GtkWindow* pencere_;
  GtkWidget* web_;
  PencereOlaylari& olaylar_;
  struct Gorulen {
    TusImzasi tus;
    bool bizden;  // handed to the page here, before the accelerators
  };
  std::deque<Gorulen> gorulenler_;       // presses seen once, in order
  std::deque<OlayKopyasi> bekleyenler_;  // presses handed to the page, not yet answered
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
