#include "app/pencere/yazim_baslangici.hpp"

namespace nevo {

bool YazimBaslangici::izinVerildi() {
  izin_ = true;
  return simdiMi();
}

bool YazimBaslangici::odaklandi() {
  odak_ = true;
  return simdiMi();
}

bool YazimBaslangici::simdiMi() {
  if (basladi_ || !izin_ || !odak_) return false;
  basladi_ = true;
  return true;
}

}  // namespace nevo
