#pragma once

#include <cstdio>
#include <string_view>

namespace nevo {

// Marks of the launch for measuring it: with NEVO_ACILIS_IZI set, each mark is one line on
// standard error, "nevo-acilis MS MARK", MS on the steady clock (CLOCK_MONOTONIC on
// Linux) in milliseconds, so a launcher can place it against its own moment of launch.
// Without it a mark costs one test of a flag. Times are not negative.
class AcilisIzi {
 public:
  AcilisIzi(std::FILE* cikti, bool acik) : cikti_(cikti), acik_(acik) {}

  bool acik() const { return acik_; }
  void isaret(std::string_view ad) const;
  void isaret(std::string_view ad, double ms) const;

 private:
  std::FILE* cikti_;
  bool acik_;
};

// The process's trace, read from the environment once.
const AcilisIzi& acilisIzi();

inline void acilisIsareti(std::string_view ad) { acilisIzi().isaret(ad); }

}  // namespace nevo
