#pragma once
#include <optional>
#include <string>
#include <string_view>

namespace nevo {

inline constexpr std::size_t EN_KISA_KOD = 6;
inline constexpr std::size_t EN_UZUN_KOD = 16;

// A pairing code from the page, normalised: upper-cased the same way under every locale,
// then only the user-perceived characters that are letters or numbers kept. Empty when the
// result is shorter than 6 or longer than 16 characters.
std::optional<std::string> eslestirmeKodu(std::string_view kod);

}  // namespace nevo
