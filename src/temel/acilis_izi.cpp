#include "temel/acilis_izi.hpp"

#include <chrono>
#include <cmath>
#include <cstdlib>

namespace nevo {

void AcilisIzi::isaret(std::string_view ad) const {
  if (!acik_) return;
  const auto simdi = std::chrono::steady_clock::now().time_since_epoch();
  isaret(ad, std::chrono::duration<double, std::milli>(simdi).count());
}

void AcilisIzi::isaret(std::string_view ad, double ms) const {
  if (!acik_) return;
  // In whole microseconds, so the decimal separator is a point in every locale.
  const long long mikro = std::llround(ms * 1000);
  std::fprintf(cikti_, "nevo-acilis %lld.%03lld %.*s\n", mikro / 1000, mikro % 1000,
               static_cast<int>(ad.size()), ad.data());
  std::fflush(cikti_);
}

const AcilisIzi& acilisIzi() {
  static const AcilisIzi iz(stderr, std::getenv("NEVO_ACILIS_IZI") != nullptr);
  return iz;
}

}  // namespace nevo
