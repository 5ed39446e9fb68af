#include "bridge/bildirim.hpp"

namespace nevo {

const char* bildirimKelimesi(BildirimYetkisi yetki) {
  switch (yetki) {
    case BildirimYetkisi::yetkili:
    case BildirimYetkisi::gecici:
    case BildirimYetkisi::anlik:
      return "verildi";
    case BildirimYetkisi::belirlenmedi:
      return "sorulmadi";
    case BildirimYetkisi::reddedildi:
      return "reddedildi";
    case BildirimYetkisi::bilinmeyen:
      break;
  }
  return "desteklenmiyor";
}

}  // namespace nevo
