#include "desktop/tercih.hpp"

#include <charconv>
#include <limits>

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

std::int64_t duzTamsayiOku(std::string_view metin) {
  std::size_t i = 0;
  while (i < metin.size() && (metin[i] == ' ' || (metin[i] >= '\t' && metin[i] <= '\r'))) ++i;
  const bool eksi = i < metin.size() && metin[i] == '-';
  if (i < metin.size() && (metin[i] == '-' || metin[i] == '+')) ++i;
  constexpr auto SINIR = std::numeric_limits<std::int64_t>::max();
  std::int64_t deger = 0;
  for (; i < metin.size() && metin[i] >= '0' && metin[i] <= '9'; ++i) {
    const int basamak = metin[i] - '0';
    if (deger > (SINIR - basamak) / 10)
      return eksi ? std::numeric_limits<std::int64_t>::min() : SINIR;
    deger = deger * 10 + basamak;
  }
  return eksi ? -deger : deger;
}

std::optional<bool> mantiksalOku(std::string_view metin) {
  if (metin == "true") return true;
  if (metin == "false") return false;
  return std::nullopt;
}

}  // namespace nevo
