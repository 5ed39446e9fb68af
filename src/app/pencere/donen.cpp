#include "app/pencere/donen.hpp"

#include <cmath>
#include <numbers>

namespace nevo {
namespace {

constexpr double EN_SOLUK = 0.15;

}  // namespace

int donenAdimi(std::int64_t mikrosaniye) {
  const auto adim = (mikrosaniye * KOL_SAYISI / 1'000'000) % KOL_SAYISI;
  return static_cast<int>(adim < 0 ? adim + KOL_SAYISI : adim);
}

std::vector<Kol> donenKollari(double kenar, int adim) {
  const double merkez = kenar / 2;
  const double ic = kenar * 0.25;
  const double dis = merkez - kolKalinligi(kenar) / 2;
  std::vector<Kol> kollar;
  kollar.reserve(KOL_SAYISI);
  for (int i = 0; i < KOL_SAYISI; ++i) {
    const double aci = 2 * std::numbers::pi * i / KOL_SAYISI;
    const double x = std::sin(aci);
    const double y = -std::cos(aci);
    const int geride = ((adim - i) % KOL_SAYISI + KOL_SAYISI) % KOL_SAYISI;
    kollar.push_back({{merkez + ic * x, merkez + ic * y, merkez + dis * x, merkez + dis * y},
                      1.0 - (1.0 - EN_SOLUK) * geride / (KOL_SAYISI - 1)});
  }
  return kollar;
}

double kolKalinligi(double kenar) { return kenar / 9; }

}  // namespace nevo
