#include "app/pencere/yakinlastirma.hpp"

#include <algorithm>
#include <iterator>

namespace nevo {

std::int64_t Yakinlastirma::yuzde() const {
  const auto deger = depo_.tamsayi(ANAHTAR);
  if (!deger || *deger < std::begin(ADIMLAR)[0] || *deger > std::end(ADIMLAR)[-1]) {
    return VARSAYILAN;
  }
  return *deger;
}

// A value between two steps (written by hand) moves to the neighbouring step.
std::int64_t Yakinlastirma::buyut() {
  const auto sonraki = std::upper_bound(std::begin(ADIMLAR), std::end(ADIMLAR), yuzde());
  return yaz(sonraki == std::end(ADIMLAR) ? std::end(ADIMLAR)[-1] : *sonraki);
}

std::int64_t Yakinlastirma::kucult() {
  const auto bu = std::lower_bound(std::begin(ADIMLAR), std::end(ADIMLAR), yuzde());
  return yaz(bu == std::begin(ADIMLAR) ? *bu : *std::prev(bu));
}

std::int64_t Yakinlastirma::sifirla() { return yaz(VARSAYILAN); }

std::int64_t Yakinlastirma::yaz(std::int64_t yuzde) {
  depo_.tamsayiYaz(ANAHTAR, yuzde);
  return yuzde;
}

}  // namespace nevo
