// The preference file's reader on any bytes: typed reads never crash and never accept what
// is not a whole integer or "true"/"false".
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <string>

#include "desktop/tercih.hpp"
#include "desktop/tercih_deposu_gtk.hpp"

namespace {

void denetle(bool kosul) {
  if (!kosul) __builtin_trap();
}

const std::string& dosyaYolu() {
  static const std::string yol = [] {
    const char* tmp = std::getenv("TMPDIR");
    return std::string(tmp ? tmp : "/tmp") + "/nevo-fuzz-tercih-" + std::to_string(::getpid()) +
           ".ini";
  }();
  return yol;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* veri, std::size_t boyut) {
  const std::string metin(reinterpret_cast<const char*>(veri), boyut);
  if (nevo::tamsayiOku(metin)) {
    denetle(!metin.empty() && metin.find_first_not_of("-0123456789") == std::string::npos);
  }
  if (const auto deger = nevo::mantiksalOku(metin)) {
    denetle(metin == (*deger ? "true" : "false"));
  }
  std::ofstream(dosyaYolu(), std::ios::binary | std::ios::trunc) << metin;
  nevo::TercihDeposuGtk depo(dosyaYolu());
  nevo::Tercih(depo).hepsi();
  depo.anlik()->metin("nevo.kisayol.ad");
  ::unlink(dosyaYolu().c_str());
  return 0;
}
