#pragma once
#include <optional>
#include <string>
#include <string_view>

namespace nevo {

// The scheme of the links that open the shell.
inline constexpr const char* ADRES_SEMASI = "nevo";

// The page call that an incoming link carries, or nothing when it carries none. A link
// whose text contains "auth/baglanti" is a connection result, read from its query items
// "kod" and "baglanti"; every other link is a session, read from the fragment parameters
// "access_token" and "refresh_token".
std::optional<std::string> gelenAdresBetigi(std::string_view adres);

// The connection result's call: the query items "kod" ("" when absent) and "baglanti"
// ("hata" when absent); nothing when the text does not parse or has no query.
std::optional<std::string> baglantiBetigi(std::string_view adres);

// The session's call: both tokens from the fragment, or nothing.
std::optional<std::string> oturumBetigi(std::string_view adres);

}  // namespace nevo
