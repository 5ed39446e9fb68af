#pragma once
// Stand-in: the availability and nullability macros the declarations below use, in the form
// the documentation pages show ("macOS 13.0+", "iOS 14.0+" with no macOS entry).

#define NEVO_KULLANILABILIR_macos(s) __attribute__((availability(macos, introduced = s)))
#define NEVO_KULLANILABILIR_ios(s) __attribute__((availability(ios, introduced = s)))
#define NEVO_KULLANILAMAZ_macos __attribute__((availability(macos, unavailable)))
#define NEVO_KULLANILAMAZ_ios __attribute__((availability(ios, unavailable)))

#define NEVO_SEC(_1, _2, AD, ...) AD
#define NEVO_KULLANILABILIR_1(a) NEVO_KULLANILABILIR_##a
#define NEVO_KULLANILABILIR_2(a, b) NEVO_KULLANILABILIR_##a NEVO_KULLANILABILIR_##b
#define API_AVAILABLE(...) \
  NEVO_SEC(__VA_ARGS__, NEVO_KULLANILABILIR_2, NEVO_KULLANILABILIR_1, _)(__VA_ARGS__)
#define API_UNAVAILABLE(p) NEVO_KULLANILAMAZ_##p

#define NS_ASSUME_NONNULL_BEGIN _Pragma("clang assume_nonnull begin")
#define NS_ASSUME_NONNULL_END _Pragma("clang assume_nonnull end")
// Written after `typedef`. In C++ an enumeration keeps its own type; an option set is the
// plain integer type, so that `A | B` needs no cast.
#define NS_ENUM(tur, ad) \
  enum ad : tur ad;      \
  enum ad : tur
#define NS_OPTIONS(tur, ad) \
  tur ad;                   \
  enum : tur
#define NS_DESIGNATED_INITIALIZER __attribute__((objc_designated_initializer))
#define NS_RETURNS_INNER_POINTER __attribute__((objc_returns_inner_pointer))
#define NS_NOESCAPE __attribute__((noescape))
