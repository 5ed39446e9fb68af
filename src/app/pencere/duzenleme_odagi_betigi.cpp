#include "app/pencere/duzenleme_odagi_betigi.hpp"

namespace nevo {

// Inputs of the kinds that hold words; a field that cannot be edited takes no words.
const char* duzenlemeOdagiBetigi() {
  return R"js((function () {
  var YAZILIR = ["", "text", "search", "email", "url"];
  function yaziAlir(e) {
    if (!e || typeof e !== "object") return false;
    if (e.isContentEditable === true) return true;
    if (e.readOnly || e.disabled) return false;
    if (e.localName === "textarea") return true;
    return e.localName === "input" &&
           YAZILIR.indexOf(String(e.getAttribute("type") || "").toLowerCase()) >= 0;
  }
  function odaklandi(olay) {
    if (!yaziAlir(olay.target)) return;
    removeEventListener("focusin", odaklandi, true);
    window.webkit.messageHandlers.duzenlemeOdagi.postMessage(true);
  }
  addEventListener("focusin", odaklandi, true);
})();)js";
}

}  // namespace nevo
