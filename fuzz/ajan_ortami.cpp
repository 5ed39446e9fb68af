// The agent's environment override file on any bytes: a variable is only ever set to a
// non-empty value under a non-empty name.
#include "agent/ajan_ortami.hpp"

#include <cstddef>
#include <cstdint>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* veri, std::size_t boyut) {
  const std::string metin(reinterpret_cast<const char*>(veri), boyut);
  nevo::Ortam ortam{{"HOME", "/home/nevo"}};
  nevo::ortamDosyasiniUygula(metin, ortam);
  for (const auto& [ad, deger] : ortam) {
    if (ad.empty() || deger.empty()) __builtin_trap();
  }
  return 0;
}
