#pragma once
#include <cstdint>
#include <vector>

#include "app/pencere/cizgi.hpp"
#include "app/pencere/perde.hpp"

namespace nevo {

// The curtain's spinner, drawn by the shell: twelve spokes around the centre of its square,
// the head opaque and each spoke behind it fainter, the head moving one spoke on twelve
// times a second (a turn a second).
inline constexpr int KOL_SAYISI = 12;
inline constexpr Renk DONEN_RENGI{0.86, 0.86, 0.88};  // light on the near-black curtain

struct Kol {
  Cizgi cizgi;
  double opaklik;  // 0…1
};

// Which spoke leads at `mikrosaniye` on a monotonic clock.
int donenAdimi(std::int64_t mikrosaniye);

// The spokes of a spinner of side `kenar` whose head is spoke `adim`; spoke 0 points up
// and the head moves clockwise.
std::vector<Kol> donenKollari(double kenar, int adim);
double kolKalinligi(double kenar);

}  // namespace nevo
