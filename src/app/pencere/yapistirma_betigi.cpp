#include "app/pencere/yapistirma_betigi.hpp"

namespace nevo {

// The watcher listens first of all (capture, on the window, before the page's scripts
// exist) and only to the user's own pastes; its own dispatch is not trusted, so it passes.
const char* yapistirmaGozcusu() {
  return R"js((function () {
  window.addEventListener("paste", function (olay) {
    var veri = olay.clipboardData;
    if (!olay.isTrusted || !veri || veri.files.length > 0 || veri.types.length > 0) return;
    olay.stopImmediatePropagation();
    olay.preventDefault();
    window.nevoYapistirmaHedefi = olay.target;
    window.webkit.messageHandlers.yapistir.postMessage("");
  }, true);
})();)js";
}

bool pngMi(std::string_view baytlar) {
  return baytlar.starts_with(std::string_view("\x89PNG\r\n\x1a\n", 8));
}

std::string gorselYapistir(const std::string& base64) {
  return R"js((function (base64, ad) {
  var hedef = window.nevoYapistirmaHedefi;
  window.nevoYapistirmaHedefi = null;
  if (!hedef || !hedef.isConnected) return;
  var veri = new DataTransfer();
  if (base64) {
    var ikili = atob(base64);
    var baytlar = new Uint8Array(ikili.length);
    for (var i = 0; i < ikili.length; i++) baytlar[i] = ikili.charCodeAt(i);
    veri.items.add(new File([baytlar], ad, {type: "image/png"}));
  }
  hedef.dispatchEvent(new ClipboardEvent("paste", {clipboardData: veri, bubbles: true,
                                                   cancelable: true, composed: true}));
})(")js" +
         base64 + "\", \"" + YAPISTIRILAN_AD + "\");";
}

}  // namespace nevo
