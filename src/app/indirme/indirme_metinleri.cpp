#include "app/indirme/indirme_metinleri.hpp"

#include <algorithm>

namespace nevo {

std::string ilerlemeMetni(const std::string& ad, std::optional<int> yuzde) {
  if (!yuzde) return ad;
  return ad + " · %" + std::to_string(*yuzde);
}

std::optional<int> indirmeYuzdesi(std::uint64_t alinan, std::optional<std::uint64_t> toplam) {
  if (!toplam || *toplam == 0) return std::nullopt;
  return static_cast<int>(std::min<std::uint64_t>(alinan, *toplam) * 100 / *toplam);
}

}  // namespace nevo
