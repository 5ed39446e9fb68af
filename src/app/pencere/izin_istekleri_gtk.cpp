#include "app/pencere/izin_istekleri_gtk.hpp"

#include <charconv>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include "app/pencere/izin_tablosu.hpp"
#include "app/pencere/ust_cerceve_betigi_gtk.hpp"
#include "app/pencere/yakalama_duyurulari.hpp"
#include "temel/glib_gtk.hpp"

namespace nevo {
namespace {

// The one switch for tests: the engine's own stand-in microphone and camera, silent and
// always present, in place of the machine's devices.
constexpr const char* SAHTE_AYGITLAR = "NEVO_TEST_SAHTE_AYGITLAR";

// WebKitGTK does not say which document asked for a device. So the top document announces
// its own capture calls (`YakalamaDuyurulari`): a script in the page's world of the top frame
// alone, in place before any script of the page, tells a relay in a script world of the
// shell's own (also the top frame's alone) when each call starts and when its answer came;
// the relay posts it to the handler "yakalama". A sub-frame has neither, and cannot reach the
// top document's to announce a call of its own.
constexpr const char* DUNYA = "nevo-yakalama";
constexpr const char* ISLEYICI = "yakalama";

constexpr const char* DUYURUCU = R"js((function () {
  if (typeof MediaDevices !== "function") return;
  var sira = 0;
  var duyur = function (asama, cagri) {
    document.dispatchEvent(new CustomEvent("nevo-yakalama", {detail: asama + " " + cagri}));
  };
  ["getUserMedia", "getDisplayMedia"].forEach(function (ad) {
    var asil = MediaDevices.prototype[ad];
    if (typeof asil !== "function") return;
    Object.defineProperty(MediaDevices.prototype, ad, {
      configurable: true, writable: true,
      value: function () {
        var cagri = ++sira;
        var bitti = function () { duyur("bitti", cagri); };
        duyur("basladi", cagri);
        try {
          var sonuc = asil.apply(this, arguments);
          Promise.resolve(sonuc).then(bitti, bitti);
          return sonuc;
        } catch (hata) {
          bitti();
          throw hata;
        }
      }
    });
  });
})();)js";

constexpr const char* AKTARICI = R"js(document.addEventListener("nevo-yakalama",
  function (olay) {
    if (typeof olay.detail !== "string") return;
    window.webkit.messageHandlers.yakalama.postMessage(olay.detail);
  });)js";

struct IzinIstekleri {
  std::string uygulamaAdresi;
  YakalamaDuyurulari duyurular;
};
using Paylasilan = std::shared_ptr<IzinIstekleri>;

// "basladi 3" or "bitti 3" from the relay; anything else is ignored.
void duyuruGeldi(YakalamaDuyurulari& duyurular, std::string_view metin) {
  const auto bosluk = metin.find(' ');
  if (bosluk == std::string_view::npos) return;
  const auto asama = metin.substr(0, bosluk);
  const auto sayi = metin.substr(bosluk + 1);
  std::uint64_t cagri = 0;
  const auto [son, hata] = std::from_chars(sayi.data(), sayi.data() + sayi.size(), cagri);
  if (hata != std::errc() || son != sayi.data() + sayi.size()) return;
  if (asama == "basladi") duyurular.basladi(cagri);
  if (asama == "bitti") duyurular.bitti(cagri);
}

std::vector<Izin> yakalamaIzinleri(WebKitUserMediaPermissionRequest* istek) {
  std::vector<Izin> izinler;
  if (webkit_user_media_permission_is_for_display_device(istek)) {
    izinler.push_back(Izin::EkranPaylasimi);
  } else if (webkit_user_media_permission_is_for_video_device(istek)) {
    izinler.push_back(Izin::Kamera);
  }
  if (webkit_user_media_permission_is_for_audio_device(istek)) izinler.push_back(Izin::Mikrofon);
  return izinler;
}

Izin digerIzin(WebKitPermissionRequest* istek) {
  if (WEBKIT_IS_DEVICE_INFO_PERMISSION_REQUEST(istek)) return Izin::AygitAdlari;
  if (WEBKIT_IS_GEOLOCATION_PERMISSION_REQUEST(istek)) return Izin::Konum;
  if (WEBKIT_IS_POINTER_LOCK_PERMISSION_REQUEST(istek)) return Izin::FareKilidi;
  if (WEBKIT_IS_NOTIFICATION_PERMISSION_REQUEST(istek)) return Izin::WebBildirimi;
  if (WEBKIT_IS_CLIPBOARD_PERMISSION_REQUEST(istek)) return Izin::PanoOkuma;
  if (WEBKIT_IS_MEDIA_KEY_SYSTEM_PERMISSION_REQUEST(istek)) return Izin::KorumaliMedya;
  if (WEBKIT_IS_WEBSITE_DATA_ACCESS_PERMISSION_REQUEST(istek)) return Izin::SiteVerisi;
  return Izin::Diger;
}

std::optional<std::string> sayfaAdresi(WebKitWebView* web) {
  const char* adres = webkit_web_view_get_uri(web);
  return adres != nullptr ? std::optional<std::string>(adres) : std::nullopt;
}

// A capture request takes a waiting call of the top document, if there is one, whatever the
// table then decides; other requests never come with a frame the shell could name.
bool izinVer(WebKitWebView* web, WebKitPermissionRequest* istek, IzinIstekleri& izinler) {
  std::vector<Izin> istenen{digerIzin(istek)};
  IzinKaynagi kaynak{sayfaAdresi(web), false, std::nullopt};
  if (WEBKIT_IS_USER_MEDIA_PERMISSION_REQUEST(istek)) {
    istenen = yakalamaIzinleri(WEBKIT_USER_MEDIA_PERMISSION_REQUEST(istek));
    kaynak.ustSayfa = izinler.duyurular.istekGeldi();
  }
  if (istenen.empty()) return false;
  for (Izin izin : istenen) {
    if (!izinVerilir(izin, kaynak, izinler.uygulamaAdresi)) return false;
  }
  return true;
}

// The engine names the top document's origin for every query, a sub-frame's included.
gboolean durumSoyle(WebKitWebView* web, WebKitPermissionStateQuery* sorgu,
                    const IzinIstekleri& izinler) {
  WebKitSecurityOrigin* koken = webkit_permission_state_query_get_security_origin(sorgu);
  const char* host = koken != nullptr ? webkit_security_origin_get_host(koken) : nullptr;
  const IzinKaynagi kaynak{sayfaAdresi(web), true, std::string(host != nullptr ? host : "")};
  const auto durum =
      sorguDurumu(webkit_permission_state_query_get_name(sorgu), kaynak, izinler.uygulamaAdresi);
  if (!durum) return FALSE;
  webkit_permission_state_query_finish(sorgu, *durum == IzinDurumu::Verildi
                                                  ? WEBKIT_PERMISSION_STATE_GRANTED
                                                  : WEBKIT_PERMISSION_STATE_DENIED);
  return TRUE;
}

void ayarla(WebKitWebView* web) {
  WebKitSettings* ayarlar = webkit_web_view_get_settings(web);
  webkit_settings_set_enable_media_stream(ayarlar, TRUE);
  webkit_settings_set_enable_webrtc(ayarlar, TRUE);
  if (g_getenv(SAHTE_AYGITLAR) != nullptr) {
    webkit_settings_set_enable_mock_capture_devices(ayarlar, TRUE);
  }
}

void duyurulariBagla(WebKitUserContentManager* yonetici, const Paylasilan& izinler) {
  Sinyal<void(WebKitUserContentManager*, WebKitJavascriptResult*)>::bagla(
      yonetici, "script-message-received::yakalama",
      [izinler](WebKitUserContentManager*, WebKitJavascriptResult* sonuc) {
        JSCValue* deger = webkit_javascript_result_get_js_value(sonuc);
        if (!jsc_value_is_string(deger)) return;
        GMetin metin(jsc_value_to_string(deger));
        if (metin) duyuruGeldi(izinler->duyurular, metin.get());
      });
  webkit_user_content_manager_register_script_message_handler_in_world(yonetici, ISLEYICI, DUNYA);
  ustCerceveBetigi(yonetici, AKTARICI, DUNYA);
  ustCerceveBetigi(yonetici, DUYURUCU, nullptr);
}

}  // namespace

void izinIstekleriniBagla(WebKitWebView* web, WebKitUserContentManager* yonetici,
                          const std::string& uygulamaAdresi) {
  ayarla(web);
  auto izinler = std::make_shared<IzinIstekleri>(IzinIstekleri{uygulamaAdresi, {}});
  duyurulariBagla(yonetici, izinler);
  Sinyal<gboolean(WebKitWebView*, WebKitPermissionRequest*)>::bagla(
      web, "permission-request", [izinler](WebKitWebView* w, WebKitPermissionRequest* istek) {
        if (izinVer(w, istek, *izinler)) {
          webkit_permission_request_allow(istek);
        } else {
          webkit_permission_request_deny(istek);
        }
        return TRUE;
      });
  Sinyal<gboolean(WebKitWebView*, WebKitPermissionStateQuery*)>::bagla(
      web, "query-permission-state",
      [izinler](WebKitWebView* w, WebKitPermissionStateQuery* sorgu) {
        return durumSoyle(w, sorgu, *izinler);
      });
  // The calls of a document that is gone never answer.
  Sinyal<void(WebKitWebView*, WebKitLoadEvent)>::bagla(
      web, "load-changed", [izinler](WebKitWebView*, WebKitLoadEvent olay) {
        if (olay == WEBKIT_LOAD_COMMITTED) izinler->duyurular.sifirla();
      });
}

}  // namespace nevo
