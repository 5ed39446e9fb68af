#include "desktop/baslangic.hpp"

namespace nevo {

bool Baslangic::destekli() const {
  return servis_.sistemDestekler() && sistem_.paketKimligi().has_value();
}

bool Baslangic::acik() const {
  return destekli() && servis_.durum() == GirisOgesiDurumu::acik;
}

std::optional<std::string> Baslangic::hata() const {
  if (destekli() && servis_.durum() == GirisOgesiDurumu::onayBekliyor) return ONAY_BEKLIYOR;
  return std::nullopt;
}

std::optional<std::string> Baslangic::ayarla(bool istenen) {
  if (!destekli()) return std::nullopt;
  const bool acikMi = servis_.durum() == GirisOgesiDurumu::acik;
  std::optional<std::string> basarisiz;
  if (istenen && !acikMi) {
    basarisiz = servis_.kaydet();
  } else if (!istenen && acikMi) {
    basarisiz = servis_.kaydiSil();
  }
  if (basarisiz) return KABUL_EDILMEDI + *basarisiz;
  return hata();
}

}  // namespace nevo
