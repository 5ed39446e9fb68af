#include "bridge/govde.hpp"

#include <limits>

namespace nevo {
namespace {

const nlohmann::json* uye(const nlohmann::json& govde, const char* anahtar) {
  if (!govde.is_object()) return nullptr;
  auto bulunan = govde.find(anahtar);
  return bulunan == govde.end() ? nullptr : &*bulunan;
}

}  // namespace

std::optional<std::string> metinAlani(const nlohmann::json& govde, const char* anahtar) {
  const auto* deger = uye(govde, anahtar);
  if (deger == nullptr || !deger->is_string()) return std::nullopt;
  return deger->get<std::string>();
}

std::optional<bool> mantiksalAlan(const nlohmann::json& govde, const char* anahtar) {
  const auto* deger = uye(govde, anahtar);
  if (deger == nullptr || !deger->is_boolean()) return std::nullopt;
  return deger->get<bool>();
}

// A whole number that fits a signed 64-bit integer, as Swift's `as? Int` accepts it.
std::optional<std::int64_t> tamsayiAlan(const nlohmann::json& govde, const char* anahtar) {
  const auto* deger = uye(govde, anahtar);
  if (deger == nullptr) return std::nullopt;
  if (deger->is_number_unsigned()) {
    const auto buyuk = deger->get<std::uint64_t>();
    if (buyuk > static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max())) {
      return std::nullopt;
    }
    return static_cast<std::int64_t>(buyuk);
  }
  if (deger->is_number_integer()) return deger->get<std::int64_t>();
  return std::nullopt;
}

}  // namespace nevo
