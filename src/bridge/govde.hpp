#pragma once
#include <cstdint>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <string_view>

namespace nevo {

// A message body as JSON, or a discarded value when it is not JSON. Half a character pair
// (a lone UTF-16 surrogate, escaped or raw) and any byte that is not UTF-8 read as U+FFFD
// first, so one broken character does not lose the whole message.
nlohmann::json govdeCoz(std::string_view metin);

// The text with every lone surrogate escape ("\\ud83d" without its partner) and every
// byte that is not part of well-formed UTF-8 replaced by U+FFFD.
std::string vekilleriOnar(std::string_view metin);

// Typed reads of a message body's member: a value of another type counts as missing.
std::optional<std::string> metinAlani(const nlohmann::json& govde, const char* anahtar);
std::optional<bool> mantiksalAlan(const nlohmann::json& govde, const char* anahtar);
std::optional<std::int64_t> tamsayiAlan(const nlohmann::json& govde, const char* anahtar);

}  // namespace nevo
