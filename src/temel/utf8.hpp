#pragma once
#include <string>
#include <string_view>

namespace nevo {

// The text as valid UTF-8: every byte that does not belong to a well-formed sequence
// (overlong forms, surrogates and code points above U+10FFFF included) becomes U+FFFD;
// everything else, NUL bytes too, passes through unchanged.
std::string gecerliUtf8(std::string_view metin);

}  // namespace nevo
