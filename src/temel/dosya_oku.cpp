#include "temel/dosya_oku.hpp"

#include <fstream>
#include <iterator>

namespace nevo {

std::optional<std::string> dosyaOku(const std::string& yol) {
  std::ifstream dosya(yol, std::ios::binary);
  if (!dosya) return std::nullopt;
  std::string metin{std::istreambuf_iterator<char>(dosya), std::istreambuf_iterator<char>()};
  if (dosya.bad()) return std::nullopt;
  return metin;
}

}  // namespace nevo
