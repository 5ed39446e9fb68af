#pragma once
#include <string>
#include <string_view>

namespace nevo {

// The text escaped for a single-quoted script literal: backslash, quote, LF,
// CR, U+2028 and U+2029, in that order; nothing else.
std::string jsKacir(std::string_view metin);

// One native-to-page call: "window.F && window.F(arguments)".
std::string sayfaCagrisi(std::string_view islev, std::string_view argumanlar);

// A string argument: the text between single quotes, escaped with jsKacir.
std::string metinArgumani(std::string_view metin);

}  // namespace nevo
