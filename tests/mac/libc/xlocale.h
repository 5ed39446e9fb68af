#pragma once
// Stand-in written from macOS's xlocale(3), printf_l(3) and scanf_l(3) manual pages: the
// functions with an explicit locale that LLVM's C++ library calls on a Mac. The rest of
// the C library is the host's.
#include <locale.h>
#include <stddef.h>

#ifdef __cplusplus
extern "C" {
#endif
int snprintf_l(char* str, size_t size, locale_t loc, const char* format, ...);
int asprintf_l(char** ret, locale_t loc, const char* format, ...);
int sscanf_l(const char* str, locale_t loc, const char* format, ...);
#ifdef __cplusplus
}
#endif
