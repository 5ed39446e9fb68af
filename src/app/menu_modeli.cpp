#include "app/menu_modeli.hpp"

#include <cctype>

namespace nevo {
namespace {
const MenuOgesi AYRAC{};
}

std::vector<AltMenu> anaMenu() {
  return {
      {"",
       {{"Nevo Hakkında", eylem::HAKKINDA, ""},
        AYRAC,
        {"Gizle", eylem::GIZLE, "h"},
        {"Diğerlerini Gizle", eylem::DIGERLERINI_GIZLE, "H"},
        AYRAC,
        {"Nevo'den Çık", eylem::CIK, "q"}}},
      {"Düzen",
       {{"Geri Al", eylem::GERI_AL, "z"},
        {"Yinele", eylem::YINELE, "Z"},
        AYRAC,
        {"Kes", eylem::KES, "x"},
        {"Kopyala", eylem::KOPYALA, "c"},
        {"Yapıştır", eylem::YAPISTIR, "v"},
        {"Tümünü Seç", eylem::TUMUNU_SEC, "a"}}},
      {"Görünüm",
       {{"Yeniden Yükle", eylem::YENIDEN_YUKLE, "r"}, {"Tam Ekran", eylem::TAM_EKRAN, "f"}}},
      {"Pencere",
       {{"Simge Durumuna Küçült", eylem::KUCULT, "m"}, {"Kapat", eylem::KAPAT, "w"}},
       true},
  };
}

bool ayracMi(const MenuOgesi& oge) { return oge.eylem.empty(); }

bool shiftEkler(const MenuOgesi& oge) {
  return oge.tus.size() == 1 && std::isupper(static_cast<unsigned char>(oge.tus[0]));
}

}  // namespace nevo
