#include "app/pencere/menu_modeli.hpp"

#include <cctype>

namespace nevo {
namespace {

const MenuOgesi AYRAC{};

const MenuOgesi* ogeBul(const std::vector<AltMenu>& menu, std::string_view aranan,
                        std::string MenuOgesi::*alan) {
  for (const auto& alt : menu) {
    for (const auto& oge : alt.ogeler) {
      if (!ayracMi(oge) && oge.*alan == aranan) return &oge;
    }
  }
  return nullptr;
}

}  // namespace

std::vector<AltMenu> anaMenu(const PlatformMetinleri& metinler) {
  return {
      {"",
       {{"Nevo Hakkında", eylem::HAKKINDA, "", "orderFrontStandardAboutPanel:"},
        AYRAC,
        {"Gizle", eylem::GIZLE, "h", "hide:"},
        {"Diğerlerini Gizle", eylem::DIGERLERINI_GIZLE, "H", "hideOtherApplications:", "",
         metinler.digerleriniGizlemeVar},
        AYRAC,
        {"Nevo'den Çık", eylem::CIK, "q", "terminate:"}}},
      {"Düzen",
       {{"Geri Al", eylem::GERI_AL, "z", "undo:", "Undo"},
        {"Yinele", eylem::YINELE, "Z", "redo:", "Redo"},
        AYRAC,
        {"Kes", eylem::KES, "x", "cut:", "Cut"},
        {"Kopyala", eylem::KOPYALA, "c", "copy:", "Copy"},
        {"Yapıştır", eylem::YAPISTIR, "v", "paste:", "Paste"},
        {"Tümünü Seç", eylem::TUMUNU_SEC, "a", "selectAll:", "SelectAll"}}},
      {"Görünüm",
       {{"Yeniden Yükle", eylem::YENIDEN_YUKLE, "r", "yenidenYukle"},
        {"Tam Ekran", eylem::TAM_EKRAN, "f", "toggleFullScreen:"}}},
      {"Pencere",
       {{"Simge Durumuna Küçült", eylem::KUCULT, "m", "miniaturize:"},
        {"Kapat", eylem::KAPAT, "w", "performClose:"}},
       true},
  };
}

bool ayracMi(const MenuOgesi& oge) { return oge.eylem.empty(); }

bool shiftEkler(const MenuOgesi& oge) { return shiftEkler(oge.tus); }

bool shiftEkler(std::string_view tus) {
  return tus.size() == 1 && std::isupper(static_cast<unsigned char>(tus[0]));
}

const MenuOgesi* eylemOgesi(const std::vector<AltMenu>& menu, std::string_view eylem) {
  return ogeBul(menu, eylem, &MenuOgesi::eylem);
}

const MenuOgesi* duzenlemeOgesi(const std::vector<AltMenu>& menu, std::string_view komut) {
  if (komut.empty()) return nullptr;
  return ogeBul(menu, komut, &MenuOgesi::duzenlemeKomutu);
}

}  // namespace nevo
