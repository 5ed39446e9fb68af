#include "app/pencere/yakalama_duyurulari.hpp"

#include <algorithm>

namespace nevo {

void YakalamaDuyurulari::basladi(std::uint64_t cagri) {
  if (bekleyenler_.size() == EN_COK) bekleyenler_.pop_front();
  bekleyenler_.push_back(cagri);
}

// A call the engine answered without asking (a device it had already been given, a request it
// refused by itself) is removed here, so that no later request can take it.
void YakalamaDuyurulari::bitti(std::uint64_t cagri) {
  auto yer = std::find(bekleyenler_.begin(), bekleyenler_.end(), cagri);
  if (yer != bekleyenler_.end()) bekleyenler_.erase(yer);
}

bool YakalamaDuyurulari::istekGeldi() {
  if (bekleyenler_.empty()) return false;
  bekleyenler_.pop_front();
  return true;
}

}  // namespace nevo
