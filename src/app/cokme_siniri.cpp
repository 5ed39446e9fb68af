#include "app/cokme_siniri.hpp"

namespace nevo {

bool CokmeSiniri::kaydet() {
  ++*sayi_;
  kuyruk_.sonra(SURE, [zayif = std::weak_ptr<int>(sayi_)] {
    if (auto sayi = zayif.lock()) --*sayi;
  });
  return *sayi_ <= EN_FAZLA;
}

}  // namespace nevo
