#pragma once
#include <string>

namespace nevo::test {

// A real JavaScript engine (JavaScriptCore) that evaluates a script in a fresh context and
// returns the result as JSON text ("undefined" for undefined).
std::string jsDegerlendir(const std::string& betik);

}  // namespace nevo::test
