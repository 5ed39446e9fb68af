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
  if (istenir()) {
    if (kimlik_ != 0 || bekliyor_) return;
    bekliyor_ = true;
    kilit_.al(NEDEN,
              [this, canli = std::weak_ptr<bool>(canli_)](std::uint32_t kimlik, bool tutuluyor) {
                if (!canli.expired()) cevapGeldi(kimlik, tutuluyor);
              });
  } else if (kimlik_ != 0) {
    kilit_.birak(kimlik_);
    kimlik_ = 0;
  }
}

// A refusal leaves nothing held, and a lost hold is no hold: the next `guncelle` asks again.
void UykuEngeli::cevapGeldi(std::uint32_t kimlik, bool tutuluyor) {
  if (kimlik == 0) {
    bekliyor_ = false;
  } else if (!tutuluyor) {
    if (kimlik == kimlik_) kimlik_ = 0;
  } else {
    bekliyor_ = false;
    if (istenir()) {
      kimlik_ = kimlik;
    } else {
      kilit_.birak(kimlik);
    }
  }
}

}  // namespace nevo
