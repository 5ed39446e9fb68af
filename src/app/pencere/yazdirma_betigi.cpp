#include "app/pencere/yazdirma_betigi.hpp"

namespace nevo {

// The handler is taken now, before any script of the page could hide it.
const char* yazdirmaBetigi() {
  return R"js((function () {
  var isleyici = window.webkit.messageHandlers.nevoYazdir;
  window.print = function print() {
    isleyici.postMessage("");
  };
})();)js";
}

}  // namespace nevo
