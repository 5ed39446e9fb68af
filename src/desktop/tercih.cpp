#include "desktop/tercih.hpp"

#include <charconv>

namespace nevo {

TercihDegerleri Tercih::hepsi() const {
  const auto anlik = depo_.anlik();
  const Tercih okunan(*anlik);
  return {okunan.kisayolKod(), okunan.kisayolMod(), okunan.kisayolAd(), okunan.menuCubugu(),
          okunan.uyanikTut()};
}

std::optional<std::int64_t> tamsayiOku(std::string_view metin) {
  std::int64_t deger = 0;
  const auto* son = metin.data() + metin.size();
  auto [kalan, hata] = std::from_chars(metin.data(), son, deger);
  if (metin.empty() || hata != std::errc{} || kalan != son) return std::nullopt;
  return deger;
}

std::optional<bool> mantiksalOku(std::string_view metin) {
  if (metin == "true") return true;
  if (metin == "false") return false;
  return std::nullopt;
}

}  // namespace nevo
