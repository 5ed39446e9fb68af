#include "app/pencere/baglam_menusu.hpp"

#include <utility>

#include "app/pencere/gezinme.hpp"

namespace nevo {
namespace {

constexpr const char* TARAYICIDA_AC = "Bağlantıyı Tarayıcıda Aç";
constexpr const char* ADRESI_KOPYALA = "Bağlantı Adresini Kopyala";
constexpr const char* RESMI_KOPYALA = "Resmi Kopyala";
constexpr const char* RESMI_KAYDET = "Resmi Kaydet…";

// The menu bar's entry for `komut`: its title and key.
BaglamOgesi duzenleme(BaglamEylemi eylem, const std::vector<AltMenu>& menu, const char* komut) {
  const MenuOgesi* oge = duzenlemeOgesi(menu, komut);
  if (oge == nullptr) return {eylem, komut};
  return {eylem, oge->baslik, oge->tus, oge->duzenlemeKomutu};
}

void grupEkle(std::vector<BaglamOgesi>& menu, std::vector<BaglamOgesi> grup) {
  if (grup.empty()) return;
  if (!menu.empty()) menu.push_back({});
  for (auto& oge : grup) menu.push_back(std::move(oge));
}

// Suggestions first, set apart from the commands that follow.
std::vector<BaglamOgesi> duzenlemeGrubu(const Isabet& isabet, const std::vector<AltMenu>& menu) {
  static constexpr std::pair<BaglamEylemi, const char*> KOMUTLAR[] = {
      {BaglamEylemi::GeriAl, "Undo"},    {BaglamEylemi::Yinele, "Redo"},
      {BaglamEylemi::Kes, "Cut"},        {BaglamEylemi::Kopyala, "Copy"},
      {BaglamEylemi::Yapistir, "Paste"}, {BaglamEylemi::TumunuSec, "SelectAll"}};
  std::vector<BaglamOgesi> grup;
  if (isabet.duzenlenebilir) {
    if (isabet.oneriVar) grup = {{BaglamEylemi::YazimOnerileri}, {}};
    for (const auto& [eylem, komut] : KOMUTLAR) grup.push_back(duzenleme(eylem, menu, komut));
  } else if (isabet.secim) {
    grup.push_back(duzenleme(BaglamEylemi::Kopyala, menu, "Copy"));
  }
  return grup;
}

std::vector<BaglamOgesi> baglantiGrubu(const Isabet& isabet) {
  if (!isabet.baglanti) return {};
  std::vector<BaglamOgesi> grup;
  if (disariCikabilir(*isabet.baglanti))
    grup.push_back({BaglamEylemi::TarayicidaAc, TARAYICIDA_AC});
  grup.push_back({BaglamEylemi::AdresiKopyala, ADRESI_KOPYALA});
  return grup;
}

std::vector<BaglamOgesi> resimGrubu(const Isabet& isabet) {
  if (!isabet.resim) return {};
  return {{BaglamEylemi::ResmiKopyala, RESMI_KOPYALA}, {BaglamEylemi::ResmiKaydet, RESMI_KAYDET}};
}

}  // namespace

std::vector<BaglamOgesi> baglamMenusu(const Isabet& isabet, const std::vector<AltMenu>& menu) {
  std::vector<BaglamOgesi> sonuc;
  if (isabet.sayfaIstemedi) return sonuc;
  grupEkle(sonuc, duzenlemeGrubu(isabet, menu));
  grupEkle(sonuc, baglantiGrubu(isabet));
  grupEkle(sonuc, resimGrubu(isabet));
  return sonuc;
}

}  // namespace nevo
