#pragma once
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace nevo {

// UTF-8 text cut into user-perceived characters (extended grapheme clusters), each as its
// own UTF-8 text. Empty when the text is not valid UTF-8.
std::optional<std::vector<std::string>> karakterlereAyir(std::string_view metin);

// Whether the text is valid UTF-8.
bool utf8Mi(std::string_view metin);

// Upper case by Unicode's full case mapping, the same under every locale ("i" → "I",
// "ß" → "SS"). Invalid UTF-8 gives the empty text.
std::string buyukHarfe(std::string_view metin);

// The text without white space and line ends (Unicode's White_Space) at either end.
// Invalid UTF-8 gives the empty text.
std::string kirp(std::string_view metin);

// A character (one user-perceived character) whose first code point is a letter or a number.
bool harfVeyaSayi(std::string_view karakter);

}  // namespace nevo
