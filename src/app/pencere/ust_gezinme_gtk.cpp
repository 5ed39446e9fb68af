#include "app/pencere/ust_gezinme_gtk.hpp"

#include <string_view>

#include "app/pencere/ust_cerceve_betigi_gtk.hpp"

namespace nevo {
namespace {

constexpr const char* DUNYA = "nevo-gezinme";
constexpr const char* ISLEYICI = "gezinme";
constexpr std::string_view OZELLIK = "NavigationAPI";

constexpr const char* DINLEYICI = R"js(if (self.navigation) {
  navigation.addEventListener("navigate", function (olay) {
    if (!olay.destination.sameDocument) {
      window.webkit.messageHandlers.gezinme.postMessage(olay.destination.url);
    }
  });
})js";

void ozelligiAc(WebKitSettings* ayarlar) {
  WebKitFeatureList* liste = webkit_settings_get_all_features();
  for (gsize i = 0; i < webkit_feature_list_get_length(liste); ++i) {
    WebKitFeature* ozellik = webkit_feature_list_get(liste, i);
    if (webkit_feature_get_identifier(ozellik) == OZELLIK) {
      webkit_settings_set_feature_enabled(ayarlar, ozellik, TRUE);
    }
  }
  webkit_feature_list_unref(liste);
}

}  // namespace

SinyalBaglantisi ustGezinmeleriDinle(WebKitUserContentManager* yonetici, WebKitSettings* ayarlar,
                                     UstGezinmeIzi& iz) {
  ozelligiAc(ayarlar);
  auto baglanti = Sinyal<void(WebKitUserContentManager*, WebKitJavascriptResult*)>::bagliTut(
      yonetici, "script-message-received::gezinme",
      [&iz](WebKitUserContentManager*, WebKitJavascriptResult* sonuc) {
        JSCValue* deger = webkit_javascript_result_get_js_value(sonuc);
        if (!jsc_value_is_string(deger)) return;
        GMetin adres(jsc_value_to_string(deger));
        iz.duyuruldu(adres.get());
      });
  webkit_user_content_manager_register_script_message_handler_in_world(yonetici, ISLEYICI, DUNYA);
  ustCerceveBetigi(yonetici, DINLEYICI, DUNYA);
  return baglanti;
}

}  // namespace nevo
