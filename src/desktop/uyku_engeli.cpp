#include "desktop/uyku_engeli.hpp"

namespace nevo {

void UykuEngeli::ekle(const std::string& is) {
  isler.insert(is);
  guncelle();
}

void UykuEngeli::cikar(const std::string& is) {
  isler.erase(is);
  guncelle();
}

void UykuEngeli::temizle() {
  isler.clear();
  guncelle();
}

void UykuEngeli::guncelle() {
  if (tercih_.uyanikTut() && !isler.empty()) {
    if (kimlik == 0) kimlik = kilit_.al(NEDEN);
  } else if (kimlik != 0) {
    kilit_.birak(kimlik);
    kimlik = 0;
  }
}

}  // namespace nevo
