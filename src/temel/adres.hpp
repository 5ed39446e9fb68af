#pragma once
#include <optional>
#include <string>
#include <string_view>

namespace nevo {

// An address as RFC 3986 parses it, without normalisation: the scheme and host keep
// their case, so "HTTPS" is not "https".
struct Adres {
  std::string sema;                 // scheme, "" when the reference has none
  std::optional<std::string> host;  // absent when the address has no authority
  std::string yol;                  // path, percent-decoded ("" when empty)
  std::string port{};               // "" when the address names none
};

// Empty when the text is not a valid URI reference.
std::optional<Adres> adresCoz(std::string_view metin);

// A web address: scheme "http" or "https" in any case, and a host.
bool webAdresi(std::string_view metin);

// ASCII letters in lower case, as the browser engine writes hosts; other bytes unchanged.
std::string kucukHarfli(std::string metin);

// Percent-decoding of %XX sequences; other characters pass through.
std::string yuzdeCoz(std::string_view metin);

}  // namespace nevo
