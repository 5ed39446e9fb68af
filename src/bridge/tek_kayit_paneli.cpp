#include "bridge/tek_kayit_paneli.hpp"

#include <utility>

namespace nevo {

// The flag is shared with the dialog's answer, which may come after this gate is gone.
void TekKayitPaneli::ac(const std::string& onerilenAd,
                        std::function<void(std::optional<std::string>)> bitti) {
  if (*acik_) {
    bitti(std::nullopt);
    return;
  }
  *acik_ = true;
  panel_.ac(onerilenAd, [acik = acik_, bitti = std::move(bitti)](std::optional<std::string> yol) {
    *acik = false;
    bitti(std::move(yol));
  });
}

}  // namespace nevo
