#pragma once
#include <string>

namespace nevo {

// The address the shell opens: the value of NEVO_ADRES when the variable is set (the
// empty string included, unchanged), otherwise the built-in default.
std::string adresSec(const char* ortamDegeri, const std::string& varsayilan);

}  // namespace nevo
