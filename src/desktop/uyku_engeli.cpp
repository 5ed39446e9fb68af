#include "desktop/uyku_engeli.hpp"

namespace nevo {

void UykuEngeli::ekle(const std::string& is) {
  isler_.insert(is);
  guncelle();
}

void UykuEngeli::cikar(const std::string& is) {
  isler_.erase(is);
  guncelle();
}

void UykuEngeli::temizle() {
  isler_.clear();
  guncelle();
}

void UykuEngeli::guncelle() {
  if (tercih_.uyanikTut() && !isler_.empty()) {
    if (kimlik_ == 0) kimlik_ = kilit_.al(NEDEN);
  } else if (kimlik_ != 0) {
    kilit_.birak(kimlik_);
    kimlik_ = 0;
  }
}

}  // namespace nevo
