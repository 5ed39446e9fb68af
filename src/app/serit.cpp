#include "app/serit.hpp"

namespace nevo {

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
