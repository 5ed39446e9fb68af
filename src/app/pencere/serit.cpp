#include "app/pencere/serit.hpp"

namespace nevo {
namespace {

// One coordinate of the curve at parameter s, from its two inner control values.
double bezier(double s, double ic1, double ic2) {
  const double t = 1 - s;
  return 3 * t * t * s * ic1 + 3 * t * s * s * ic2 + s * s * s;
}

}  // namespace

// The ends are exact, so the last step lands on the target. Between them x grows with s
// while both x control values lie in 0…1, so halving the interval finds the s whose x is
// `oran`; fifty halvings leave an error far below a pixel.
double ZamanEgrisi::operator()(double oran) const {
  if (oran <= 0) return 0;
  if (oran >= 1) return 1;
  double alt = 0;
  double ust = 1;
  for (int i = 0; i < 50; ++i) {
    const double orta = (alt + ust) / 2;
    (bezier(orta, x1, x2) < oran ? alt : ust) = orta;
  }
  return bezier((alt + ust) / 2, y1, y2);
}

Serit::Serit(Pencere& pencere, const Sistem& sistem, const PlatformMetinleri& metinler)
    : pencere_(pencere), sistem_(sistem), metinler_(metinler) {}

Serit::Sonuc Serit::basildi(int tiklamaSayisi) {
  if (tiklamaSayisi != 2) return Sonuc::Surukle;
  const auto tercih = sistem_.ciftTiklamaTercihi();
  if (tercih == metinler_.ciftTiklamaKucult) {
    pencere_.kucult();
  } else if (tercih != metinler_.ciftTiklamaHicbiri) {
    buyutKucult();
  }
  return Sonuc::Bitti;
}

void Serit::buyutKucult() {
  Cerceve hedef;
  if (oncekiCerceve_) {
    hedef = *oncekiCerceve_;
    oncekiCerceve_.reset();
  } else {
    const auto ekran = pencere_.ekranAlani();
    if (!ekran) return;
    oncekiCerceve_ = pencere_.cerceve();
    hedef = *ekran;
  }
  pencere_.cerceveyiCanlandir(hedef, BUYUTME_SURESI);
}

}  // namespace nevo
