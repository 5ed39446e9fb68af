#include "desktop/baslangic.hpp"

namespace nevo {

bool Baslangic::destekli() const {
  return servis_.sistemDestekler() && sistem_.paketKimligi().has_value();
}

bool Baslangic::acik() const { return durum().acik; }

std::optional<std::string> Baslangic::hata() const { return durum().hata; }

BaslangicDurumu Baslangic::durum() const {
  if (!destekli()) return {};
  const auto servisDurumu = servis_.durum();
  BaslangicDurumu sonuc{true, servisDurumu == GirisOgesiDurumu::acik, std::nullopt};
  if (servisDurumu == GirisOgesiDurumu::onayBekliyor) sonuc.hata = ONAY_BEKLIYOR;
  return sonuc;
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
