#pragma once
#include <string>

namespace nevo {

// Part 1.1, entry point step 1: the value of NEVO_ADRES when the variable is set (the
// empty string included, unchanged), otherwise the built-in default.
std::string adresSec(const char* ortamDegeri, const std::string& varsayilan);

}  // namespace nevo
