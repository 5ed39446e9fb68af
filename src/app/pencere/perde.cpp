#include "app/pencere/perde.hpp"

#include <cmath>

namespace nevo {
namespace {

std::string kanal(double deger) { return std::to_string(std::lround(deger * 255)); }

}  // namespace

std::string cssRengi(Renk renk) {
  return "rgb(" + kanal(renk.kirmizi) + "," + kanal(renk.yesil) + "," + kanal(renk.mavi) + ")";
}

}  // namespace nevo
