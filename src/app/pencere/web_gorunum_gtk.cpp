#include "app/pencere/web_gorunum_gtk.hpp"

#include <memory>
#include <string>
#include <utility>

#include "app/indirme/indirme_gtk.hpp"
#include "app/pencere/duzenleme_odagi_betigi.hpp"
#include "app/pencere/izin_istekleri_gtk.hpp"
#include "app/pencere/ust_cerceve_betigi_gtk.hpp"
#include "app/pencere/ust_gezinme_gtk.hpp"
#include "app/pencere/web_baglami_gtk.hpp"
#include "app/pencere/yapistirma_gtk.hpp"
#include "temel/acilis_izi.hpp"

namespace nevo {
namespace {

// The engine offers a page's message handler to every frame and does not say which frame
// posted. So the handler "nevo" lives in a script world of its own, where only the relay
// below runs, and only in the top frame; the page's own world gets the same
// `window.webkit.messageHandlers.nevo.postMessage` in the top frame alone, which hands
// the body to the relay as JSON text through a document event. A sub-frame has neither.
constexpr const char* KOPRU_DUNYASI = "nevo-kopru";

constexpr const char* SAYFA_UCU = R"js((function () {
  var gonder = function (govde) {
    var metin = JSON.stringify(govde);
    if (typeof metin !== "string") return;
    document.dispatchEvent(new CustomEvent("nevo-kopru-mesaji", {detail: metin}));
  };
  var nevo = Object.freeze({postMessage: gonder});
  Object.defineProperty(window, "webkit", {
    value: Object.freeze({messageHandlers: Object.freeze({nevo: nevo})})
  });
})();)js";

constexpr const char* AKTARICI = R"js(document.addEventListener("nevo-kopru-mesaji",
  function (olay) {
    if (typeof olay.detail !== "string") return;
    window.webkit.messageHandlers.nevo.postMessage(JSON.parse(olay.detail));
  });)js";

GNesne<WebKitUserContentManager> icerikYoneticisi(const PencereTasarimi& tasarim,
                                                  PencereOlaylari& olaylar) {
  auto yonetici = sahiplen(webkit_user_content_manager_new());
  Sinyal<void(WebKitUserContentManager*, WebKitJavascriptResult*)>::bagla(
      yonetici.get(), "script-message-received::nevo",
      [&olaylar](WebKitUserContentManager*, WebKitJavascriptResult* sonuc) {
        GMetin json(jsc_value_to_json(webkit_javascript_result_get_js_value(sonuc), 0));
        if (json) olaylar.userContentController(json.get(), MesajKaynagi{});
      });
  webkit_user_content_manager_register_script_message_handler_in_world(yonetici.get(), "nevo",
                                                                       KOPRU_DUNYASI);
  ustCerceveBetigi(yonetici.get(), AKTARICI, KOPRU_DUNYASI);
  ustCerceveBetigi(yonetici.get(), SAYFA_UCU, nullptr);
  ustCerceveBetigi(yonetici.get(), tasarim.stilBetigi.c_str(), nullptr);
  return yonetici;
}

std::optional<std::string> istekAdresi(WebKitNavigationAction* eylem) {
  const char* adres = webkit_uri_request_get_uri(webkit_navigation_action_get_request(eylem));
  if (adres == nullptr) return std::nullopt;
  return std::string(adres);
}

void betikGonder(WebKitWebView* web, const std::string& betik, GAsyncReadyCallback geri,
                 gpointer veri) {
  webkit_web_view_evaluate_javascript(web, betik.data(), static_cast<gssize>(betik.size()), nullptr,
                                      nullptr, nullptr, geri, veri);
}

// A script's completion: its boolean result goes to the reply in `veri`.
template <JSCValue* (*bitir)(WebKitWebView*, GAsyncResult*, GError**)>
void cevapVer(GObject* kaynak, GAsyncResult* sonuc, gpointer veri) {
  std::unique_ptr<WebGorunum::Cevap> geri(static_cast<WebGorunum::Cevap*>(veri));
  GError* hata = nullptr;
  auto deger = sahiplen(bitir(WEBKIT_WEB_VIEW(kaynak), sonuc, &hata));
  g_clear_error(&hata);
  std::optional<bool> cevapDegeri;
  if (deger && jsc_value_is_boolean(deger.get())) {
    cevapDegeri = jsc_value_to_boolean(deger.get()) != FALSE;
  }
  (*geri)(cevapDegeri);
}

constexpr const char* DUZENLEME_DUNYASI = "nevo-duzenleme";

// The right button, the Menu key and Shift+F10 open the page's context menu.
bool baglamMenusuIstegi(GdkEvent* olay) {
  if (olay->type == GDK_BUTTON_PRESS) return olay->button.button == GDK_BUTTON_SECONDARY;
  if (olay->type != GDK_KEY_PRESS) return false;
  const guint tus = olay->key.keyval;
  return tus == GDK_KEY_Menu || (tus == GDK_KEY_F10 && (olay->key.state & GDK_SHIFT_MASK) != 0);
}

}  // namespace

WebGorunumGtk::WebGorunumGtk(const PencereTasarimi& tasarim, PencereOlaylari& olaylar) {
  auto yonetici = icerikYoneticisi(tasarim, olaylar);
  auto baglam = webBaglamiKur();
  acilisIsareti("web baglami");
  indirmeleriBagla(baglam.get(), olaylar.indirmeler());
  web_ = paylas(WEBKIT_WEB_VIEW(g_object_new(WEBKIT_TYPE_WEB_VIEW, "web-context", baglam.get(),
                                             "user-content-manager", yonetici.get(), nullptr)));
  acilisIsareti("web gorunumu");
  izinIstekleriniBagla(web_.get(), yonetici.get(), tasarim.uygulamaAdresi);
  yapistirmayiBagla(web_.get(), yonetici.get());
  auto* ayarlar = webkit_web_view_get_settings(web_.get());
  webkit_settings_set_user_agent_with_application_details(
      ayarlar, tasarim.kullaniciAraciAdi.c_str(), nullptr);
  // A script may ask for a new window without a click, as it may on the other platform:
  // the request reaches the navigation policy, which hands it to the browser.
  webkit_settings_set_javascript_can_open_windows_automatically(ayarlar, TRUE);
  gezinmeDuyurulari_ = ustGezinmeleriDinle(yonetici.get(), ayarlar, ustGezinmeler_);
  duzenlemeOdaginiDinle(yonetici.get());
  const GdkRGBA saydam{0, 0, 0, 0};
  webkit_web_view_set_background_color(web_.get(), &saydam);
  // Once the server answers (or the load fails) the time-out has nothing left to do.
  yanitGeldi_ = Sinyal<void(WebKitWebView*, WebKitLoadEvent)>::bagliTut(
      web_.get(), "load-changed", [this](WebKitWebView*, WebKitLoadEvent olay) {
        if (olay == WEBKIT_LOAD_COMMITTED) zamanAsiminiKaldir();
      });
  yuklenemedi_ = Sinyal<gboolean(WebKitWebView*, WebKitLoadEvent, gchar*, GError*)>::bagliTut(
      web_.get(), "load-failed", [this](WebKitWebView*, WebKitLoadEvent, gchar*, GError*) {
        zamanAsiminiKaldir();
        return FALSE;
      });
  sinyalleriBagla(olaylar);
  // Before the engine sees the press: the menu it builds then has the word's suggestions.
  Sinyal<gboolean(GtkWidget*, GdkEvent*)>::bagla(parca(), "event",
                                                 [this](GtkWidget*, GdkEvent* olay) {
                                                   if (baglamMenusuIstegi(olay)) {
                                                     yazim_.hazirOlsun();
                                                   }
                                                   return FALSE;
                                                 });
}

void WebGorunumGtk::duzenlemeOdaginiDinle(WebKitUserContentManager* yonetici) {
  const std::string sinyal = std::string("script-message-received::") + DUZENLEME_ODAGI_ISLEYICISI;
  duzenlemeOdagi_ = Sinyal<void(WebKitUserContentManager*, WebKitJavascriptResult*)>::bagliTut(
      yonetici, sinyal.c_str(),
      [this](WebKitUserContentManager*, WebKitJavascriptResult*) { yazim_.odaklandi(); });
  webkit_user_content_manager_register_script_message_handler_in_world(
      yonetici, DUZENLEME_ODAGI_ISLEYICISI, DUZENLEME_DUNYASI);
  ustCerceveBetigi(yonetici, duzenlemeOdagiBetigi(), DUZENLEME_DUNYASI);
}

// A web process that does not respond is busy in a script and would not notice the shell
// has gone: it is ended with the view, which no longer reports its end.
WebGorunumGtk::~WebGorunumGtk() {
  zamanAsiminiKaldir();
  if (!webkit_web_view_get_is_web_process_responsive(web_.get())) {
    surecBitti_.kes();
    webkit_web_view_terminate_web_process(web_.get());
  }
}

// Stopping a load that is under way fails it ("load-failed", cancelled), as a request's
// time-out does on the other platform.
void WebGorunumGtk::zamanAsiminiKur() {
  zamanAsiminiKaldir();
  zamanAsimi_ = g_timeout_add_seconds(
      static_cast<guint>(ISTEK_ZAMAN_ASIMI),
      +[](gpointer veri) -> gboolean {
        auto* gorunum = static_cast<WebGorunumGtk*>(veri);
        gorunum->zamanAsimi_ = 0;
        webkit_web_view_stop_loading(gorunum->web_.get());
        return G_SOURCE_REMOVE;
      },
      this);
}

void WebGorunumGtk::zamanAsiminiKaldir() {
  if (zamanAsimi_ != 0) g_source_remove(std::exchange(zamanAsimi_, 0));
}

void WebGorunumGtk::sinyalleriBagla(PencereOlaylari& olaylar) {
  Sinyal<void(WebKitWebView*, GParamSpec*)>::bagla(
      web_.get(), "notify::uri",
      [&olaylar](WebKitWebView*, GParamSpec*) { olaylar.adresDegisti(); });
  Sinyal<void(WebKitWebView*, WebKitLoadEvent)>::bagla(
      web_.get(), "load-changed", [&olaylar](WebKitWebView*, WebKitLoadEvent olay) {
        if (olay == WEBKIT_LOAD_COMMITTED) olaylar.sayfaIslendi();
        if (olay == WEBKIT_LOAD_FINISHED) olaylar.yuklemeBitti();
      });
  Sinyal<gboolean(WebKitWebView*, WebKitLoadEvent, gchar*, GError*)>::bagla(
      web_.get(), "load-failed",
      [&olaylar](WebKitWebView*, WebKitLoadEvent, gchar* adres, GError* hata) -> gboolean {
        if (g_error_matches(hata, WEBKIT_POLICY_ERROR,
                            WEBKIT_POLICY_ERROR_FRAME_LOAD_INTERRUPTED_BY_POLICY_CHANGE)) {
          olaylar.yuklemeKesildi();
        } else {
          olaylar.yuklemeBasarisiz(adres ? std::optional<std::string>(adres) : std::nullopt);
        }
        return TRUE;
      });
  Sinyal<gboolean(WebKitWebView*, WebKitPolicyDecision*, WebKitPolicyDecisionType)>::bagla(
      web_.get(), "decide-policy",
      [this, &olaylar](WebKitWebView*, WebKitPolicyDecision* karar,
                       WebKitPolicyDecisionType tur) -> gboolean {
        if (tur == WEBKIT_POLICY_DECISION_TYPE_RESPONSE) return FALSE;
        auto* gezinme = WEBKIT_NAVIGATION_POLICY_DECISION(karar);
        auto* eylem = webkit_navigation_policy_decision_get_navigation_action(gezinme);
        const auto adres = istekAdresi(eylem);
        // The engine does not name the frame of a navigation: the top page's own report,
        // else a click or key press, tells the main frame's apart. A new window has no
        // frame of the page.
        std::optional<bool> anaCerceve;
        if (tur == WEBKIT_POLICY_DECISION_TYPE_NEW_WINDOW_ACTION ||
            (adres && ustGezinmeler_.karsila(*adres))) {
          anaCerceve = true;
        }
        const GezinmeKaynagi kaynak{anaCerceve,
                                    webkit_navigation_action_is_user_gesture(eylem) != FALSE};
        if (olaylar.gezinmeIzni(adres, kaynak)) {
          webkit_policy_decision_use(karar);
        } else {
          webkit_policy_decision_ignore(karar);
        }
        return TRUE;
      });
  surecBitti_ = Sinyal<void(WebKitWebView*, WebKitWebProcessTerminationReason)>::bagliTut(
      web_.get(), "web-process-terminated",
      [&olaylar](WebKitWebView*, WebKitWebProcessTerminationReason) { olaylar.webSureciBitti(); });
  Sinyal<void(WebKitWebView*, GParamSpec*)>::bagla(
      web_.get(), "notify::is-web-process-responsive", [&olaylar](WebKitWebView* web, GParamSpec*) {
        olaylar.yanitVermiyor(!webkit_web_view_get_is_web_process_responsive(web));
      });
  Sinyal<GtkWidget*(WebKitWebView*, WebKitNavigationAction*)>::bagla(
      web_.get(), "create", [&olaylar](WebKitWebView*, WebKitNavigationAction* eylem) {
        olaylar.yeniPencereIstendi(istekAdresi(eylem));
        return static_cast<GtkWidget*>(nullptr);
      });
}

std::optional<std::string> WebGorunumGtk::adres() const {
  const char* adres = webkit_web_view_get_uri(web_.get());
  if (adres == nullptr) return std::nullopt;
  return std::string(adres);
}

void WebGorunumGtk::adresYukle(const std::string& adres) {
  webkit_web_view_load_uri(web_.get(), adres.c_str());
  zamanAsiminiKur();
}

void WebGorunumGtk::htmlYukle(const std::string& html) {
  zamanAsiminiKaldir();
  webkit_web_view_load_html(web_.get(), html.c_str(), nullptr);
}

void WebGorunumGtk::yenile() { webkit_web_view_reload(web_.get()); }

void WebGorunumGtk::betikCalistir(const std::string& betik) {
  betikGonder(web_.get(), betik, nullptr, nullptr);
}

void WebGorunumGtk::betikSor(const std::string& betik, Cevap cevap) {
  betikGonder(web_.get(), betik, cevapVer<webkit_web_view_evaluate_javascript_finish>,
              new WebGorunum::Cevap(std::move(cevap)));
}

void WebGorunumGtk::betikBekle(const std::string& govde, Cevap cevap) {
  webkit_web_view_call_async_javascript_function(
      web_.get(), govde.data(), static_cast<gssize>(govde.size()), nullptr, nullptr, nullptr,
      nullptr, cevapVer<webkit_web_view_call_async_javascript_function_finish>,
      new WebGorunum::Cevap(std::move(cevap)));
}

void WebGorunumGtk::sureciBitir() { webkit_web_view_terminate_web_process(web_.get()); }

void WebGorunumGtk::duzenle(const std::string& komut) {
  webkit_web_view_execute_editing_command(web_.get(), komut.c_str());
}

}  // namespace nevo

namespace nevo {

void WebGorunumGtk::yakinlik(double oran) { webkit_web_view_set_zoom_level(web_.get(), oran); }

void WebGorunumGtk::yazimDenetiminiBaslat() {
  yazim_.izinVer(webkit_web_view_get_context(web_.get()));
}

// The desktop's print dialog over the window, as the page's window.print() opens it; it
// returns once the dialog is closed, printed or cancelled.
void WebGorunumGtk::yazdir() {
  auto islem = sahiplen(webkit_print_operation_new(web_.get()));
  webkit_print_operation_run_dialog(islem.get(), GTK_WINDOW(gtk_widget_get_toplevel(parca())));
}

}  // namespace nevo
