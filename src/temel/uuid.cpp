#include "temel/uuid.hpp"

#include <array>
#include <cstdint>
#include <cstdio>
#include <random>

namespace nevo {

std::string uuidUret() {
  static std::mt19937_64 uretec{std::random_device{}()};
  std::array<std::uint8_t, 16> b{};
  for (auto& bayt : b) bayt = static_cast<std::uint8_t>(uretec());
  b[6] = static_cast<std::uint8_t>((b[6] & 0x0F) | 0x40);
  b[8] = static_cast<std::uint8_t>((b[8] & 0x3F) | 0x80);
  std::array<char, 37> metin{};
  std::snprintf(metin.data(), metin.size(),
                "%02X%02X%02X%02X-%02X%02X-%02X%02X-%02X%02X-%02X%02X%02X%02X%02X%02X", b[0], b[1],
                b[2], b[3], b[4], b[5], b[6], b[7], b[8], b[9], b[10], b[11], b[12], b[13], b[14],
                b[15]);
  return metin.data();
}

}  // namespace nevo
