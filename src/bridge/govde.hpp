#pragma once
#include <cstdint>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>

namespace nevo {

// Typed reads of a message body's member: a value of another type counts as missing.
std::optional<std::string> metinAlani(const nlohmann::json& govde, const char* anahtar);
std::optional<bool> mantiksalAlan(const nlohmann::json& govde, const char* anahtar);
std::optional<std::int64_t> tamsayiAlan(const nlohmann::json& govde, const char* anahtar);

}  // namespace nevo
