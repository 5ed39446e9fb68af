#pragma once
#include <cstdint>

#include "desktop/tercih.hpp"

namespace nevo {

// The page's zoom, in per cent, stepped in and out and kept in the preferences across
// restarts. A stored value that is no whole number between the first and the last step
// reads as 100.
class Yakinlastirma {
 public:
  static constexpr const char* ANAHTAR = "nevo.yakinlastirma";
  static constexpr std::int64_t VARSAYILAN = 100;
  static constexpr std::int64_t ADIMLAR[] = {50,  67,  75,  80,  90,  100, 110,
                                             125, 150, 175, 200, 250, 300};

  explicit Yakinlastirma(TercihDeposu& depo) : depo_(depo) {}

  std::int64_t yuzde() const;
  // Each moves to the next step (none beyond the last), stores and returns the new value.
  std::int64_t buyut();
  std::int64_t kucult();
  std::int64_t sifirla();

 private:
  std::int64_t yaz(std::int64_t yuzde);
  TercihDeposu& depo_;
};

}  // namespace nevo
