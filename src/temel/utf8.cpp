#include "temel/utf8.hpp"

#include <cstddef>

namespace nevo {
namespace {

constexpr std::string_view YERINE = "\xEF\xBF\xBD";  // U+FFFD

bool devamMi(unsigned char b) { return (b & 0xC0) == 0x80; }

// Length of the well-formed sequence that starts at `i`, or 0.
std::size_t diziUzunlugu(std::string_view m, std::size_t i) {
  const auto b = static_cast<unsigned char>(m[i]);
  std::size_t uzunluk = 0;
  unsigned char alt = 0x80;
  unsigned char ust = 0xBF;  // bounds of the second byte
  if (b < 0x80) return 1;
  if (b >= 0xC2 && b <= 0xDF) {
    uzunluk = 2;
  } else if (b >= 0xE0 && b <= 0xEF) {
    uzunluk = 3;
    if (b == 0xE0) alt = 0xA0;  // overlong
    if (b == 0xED) ust = 0x9F;  // surrogates
  } else if (b >= 0xF0 && b <= 0xF4) {
    uzunluk = 4;
    if (b == 0xF0) alt = 0x90;  // overlong
    if (b == 0xF4) ust = 0x8F;  // above U+10FFFF
  } else {
    return 0;
  }
  if (i + uzunluk > m.size()) return 0;
  const auto ikinci = static_cast<unsigned char>(m[i + 1]);
  if (ikinci < alt || ikinci > ust) return 0;
  for (std::size_t k = 2; k < uzunluk; ++k) {
    if (!devamMi(static_cast<unsigned char>(m[i + k]))) return 0;
  }
  return uzunluk;
}

}  // namespace

std::string gecerliUtf8(std::string_view metin) {
  std::string sonuc;
  sonuc.reserve(metin.size());
  for (std::size_t i = 0; i < metin.size();) {
    if (const std::size_t n = diziUzunlugu(metin, i)) {
      sonuc.append(metin.substr(i, n));
      i += n;
    } else {
      sonuc.append(YERINE);
      ++i;
    }
  }
  return sonuc;
}

}  // namespace nevo
