// Incoming links on any bytes: a link carries nothing or its values, and a link that is
// UTF-8 gives values that are UTF-8.
#include "agent/gelen_adres.hpp"

#include <cstddef>
#include <cstdint>
#include <string>

#include "temel/karakterler.hpp"

namespace {

void denetle(bool kosul) {
  if (!kosul) __builtin_trap();
}

// UTF-8 as the shell checks a link's text: a NUL is a character like any other.
bool utf8(const std::string& metin) { return nevo::utf8Mi(metin); }

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* veri, std::size_t boyut) {
  const std::string adres(reinterpret_cast<const char*>(veri), boyut);
  const bool girdiUtf8 = utf8(adres);
  if (const auto sonuc = nevo::baglantiOku(adres); sonuc && girdiUtf8) {
    denetle(utf8(sonuc->kod) && utf8(sonuc->baglanti));
  }
  if (const auto jetonlar = nevo::oturumOku(adres); jetonlar && girdiUtf8) {
    denetle(utf8(jetonlar->erisim) && utf8(jetonlar->yenileme));
  }
  return 0;
}
