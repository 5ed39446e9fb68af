// Incoming links on any bytes: a link either carries nothing or one guarded page call.
#include "agent/gelen_adres.hpp"

#include <cstddef>
#include <cstdint>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* veri, std::size_t boyut) {
  const std::string adres(reinterpret_cast<const char*>(veri), boyut);
  for (const auto& betik :
       {nevo::gelenAdresBetigi(adres), nevo::baglantiBetigi(adres), nevo::oturumBetigi(adres)}) {
    if (betik && !betik->starts_with("window.")) __builtin_trap();
  }
  return 0;
}
