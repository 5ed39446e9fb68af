#pragma once
#include <map>
#include <string>
#include <string_view>

#include "agent/ajan_yerleri.hpp"

namespace nevo {

// The whole environment of an agent process, name to value.
using Ortam = std::map<std::string, std::string>;

inline constexpr const char* AJAN_ORTAM_DOSYASI = "ajan-ortam.txt";

// The lines of the override file applied to `ortam`: lines split at line feeds (a carriage
// return before one makes a single character with it, so it splits nothing), each line
// split once at "=" after any leading "=", a line with a name and a non-empty value sets
// that variable. Nothing is trimmed. Text that is not valid UTF-8 changes nothing.
void ortamDosyasiniUygula(std::string_view metin, Ortam& ortam);

// The five built-in variables, then the resource directory's override file over them.
Ortam ajanOrtami(const AjanYerleri& yerler);

}  // namespace nevo
