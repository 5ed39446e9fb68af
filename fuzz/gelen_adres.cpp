// Incoming links on any bytes: a link carries nothing or its values, and a link that is
// UTF-8 (as the shell checks it: a NUL is a character like any other) gives UTF-8 values.
#include "agent/gelen_adres.hpp"

#include <cstddef>
#include <cstdint>
#include <string>

#include "temel/karakterler.hpp"

namespace {

void denetle(bool kosul) {
  if (!kosul) __builtin_trap();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* veri, std::size_t boyut) {
  const std::string adres(reinterpret_cast<const char*>(veri), boyut);
  const bool girdiUtf8 = nevo::utf8Mi(adres);
  if (const auto sonuc = nevo::baglantiOku(adres); sonuc && girdiUtf8) {
    denetle(nevo::utf8Mi(sonuc->kod) && nevo::utf8Mi(sonuc->baglanti));
  }
  if (const auto jetonlar = nevo::oturumOku(adres); jetonlar && girdiUtf8) {
    denetle(nevo::utf8Mi(jetonlar->erisim) && nevo::utf8Mi(jetonlar->yenileme));
  }
  return 0;
}
