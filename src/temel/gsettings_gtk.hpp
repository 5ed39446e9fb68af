#pragma once
#include <gio/gio.h>

namespace nevo {

// Whether the settings schema `sema` is installed and, when `anahtar` is given, has that
// key: a desktop's settings are read only where that desktop is installed.
bool ayarVar(const char* sema, const char* anahtar = nullptr);

}  // namespace nevo
