#include "app/pencere/kenar.hpp"

namespace nevo {
namespace {

// -1 near the start of a side of length `uzunluk`, +1 near its end, 0 between.
int yon(double konum, double uzunluk, double pay) {
  if (konum < pay) return -1;
  if (konum >= uzunluk - pay) return 1;
  return 0;
}

}  // namespace

std::optional<Kenar> kenarBul(Olcu pencere, double x, double y) {
  if (x < 0 || y < 0 || x >= pencere.en || y >= pencere.boy) return std::nullopt;
  const int yatay = yon(x, pencere.en, KENAR_BANDI);
  const int dikey = yon(y, pencere.boy, KENAR_BANDI);
  if (yatay == 0 && dikey == 0) return std::nullopt;
  // On an edge, the last few pixels towards either end belong to the corner.
  const int kx = yatay != 0 ? yatay : yon(x, pencere.en, KOSE_PAYI);
  const int ky = dikey != 0 ? dikey : yon(y, pencere.boy, KOSE_PAYI);
  if (ky < 0) return kx < 0 ? Kenar::SolUst : kx > 0 ? Kenar::SagUst : Kenar::Ust;
  if (ky > 0) return kx < 0 ? Kenar::SolAlt : kx > 0 ? Kenar::SagAlt : Kenar::Alt;
  return kx < 0 ? Kenar::Sol : Kenar::Sag;
}

}  // namespace nevo
