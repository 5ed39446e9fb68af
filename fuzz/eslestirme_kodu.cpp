// Pairing codes from the page on any bytes: a code that is kept is already normal, so
// normalising it again changes nothing.
#include "agent/eslestirme_kodu.hpp"

#include <cstddef>
#include <cstdint>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* veri, std::size_t boyut) {
  const std::string kod(reinterpret_cast<const char*>(veri), boyut);
  const auto normal = nevo::eslestirmeKodu(kod);
  if (normal && nevo::eslestirmeKodu(*normal) != normal) __builtin_trap();
  return 0;
}
