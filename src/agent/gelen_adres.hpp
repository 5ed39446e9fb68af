#pragma once
#include <optional>
#include <string>
#include <string_view>

namespace nevo {

// The scheme of the links that open the shell.
inline constexpr const char* ADRES_SEMASI = "nevo";

// What a connection link carries: the query items "kod" and "baglanti".
struct BaglantiSonucu {
  std::string kod;       // "" when absent
  std::string baglanti;  // "hata" when absent
};

// What a session link carries: both tokens of its fragment.
struct OturumJetonlari {
  std::string erisim;    // access_token
  std::string yenileme;  // refresh_token
};

// A link whose text contains "auth/baglanti" anywhere is a connection result; every other
// link is a session.
bool baglantiAdresiMi(std::string_view adres);

// The connection result, percent-decoded (a "+" stays "+"); nothing when the text does not
// parse or has no query.
std::optional<BaglantiSonucu> baglantiOku(std::string_view adres);

// Both tokens from the fragment, or nothing.
std::optional<OturumJetonlari> oturumOku(std::string_view adres);

}  // namespace nevo
