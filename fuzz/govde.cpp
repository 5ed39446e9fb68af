// Page message bodies through the whole dispatcher, from the main frame and from a
// sub-frame, over fakes: never a crash, a hang or a leak; a sub-frame is never obeyed.
#include <cstddef>
#include <cstdint>
#include <string>

#include "fakes/uygulama_duzenegi.hpp"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* veri, std::size_t boyut) {
  const std::string govde(reinterpret_cast<const char*>(veri), boyut);
  nevo::sahte::UygulamaDuzenegi d;
  d.paketliAc();
  d.mesaj(govde, {false, std::string("app.nevo.ai")});
  d.kuyruk.calistir();
  if (!d.web().betikler.empty() || !d.sistem.disaridaAcilanlar.empty() ||
      !d.kayitPaneli.onerilenler.empty() || !d.bildirim.gonderilenler.empty()) {
    __builtin_trap();
  }
  d.mesaj(govde);
  d.kuyruk.calistir();
  if (d.kayitPaneli.bitti) d.kayitPaneli.bitti(std::nullopt);
  return 0;
}
