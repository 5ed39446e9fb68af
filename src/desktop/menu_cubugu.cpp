#include "desktop/menu_cubugu.hpp"

namespace nevo {

const DurumOgesiTasarimi& menuCubuguTasarimi() {
  static const DurumOgesiTasarimi tasarim{
      "Nevo",
      "N",
      {
          {"Nevo'yi Aç", "ac"},
          {"Yeni sohbet", "yeni-sohbet"},
          {"Nevo Code görevleri", "nevo-code"},
          {"", ""},
          {"Ayarlar", "ayarlar"},
          {"", ""},
          {"Nevo'den Çık", "cik"},
      },
  };
  return tasarim;
}

void MenuCubugu::uygula(bool goster) {
  if (goster == gosteriliyor_) return;
  gosteriliyor_ = goster;
  if (!goster) {
    oge_.kaldir();
    return;
  }
  oge_.goster(menuCubuguTasarimi(), [this](const std::string& kimlik) {
    if (eylem_) eylem_(kimlik);
  });
}

}  // namespace nevo
