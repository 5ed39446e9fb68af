#include "app/pencere/ust_gezinme_izi.hpp"

#include <algorithm>
#include <utility>

namespace nevo {

void UstGezinmeIzi::duyuruldu(std::string adres) {
  if (adresler_.size() == SINIR) adresler_.pop_front();
  adresler_.push_back(std::move(adres));
}

bool UstGezinmeIzi::karsila(const std::string& adres) {
  const auto bulunan = std::find(adresler_.begin(), adresler_.end(), adres);
  if (bulunan == adresler_.end()) return false;
  adresler_.erase(bulunan);
  return true;
}

}  // namespace nevo
