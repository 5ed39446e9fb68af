#pragma once
#include <string>

namespace nevo {

// A fresh random (version 4) UUID in its canonical upper-case form, as NSUUID writes it.
std::string uuidUret();

}  // namespace nevo
