#pragma once
#include <string_view>
#include <vector>

namespace nevo {

// The window buttons that the Linux strip carries, since an undecorated window has none.
enum class Dugme { Menu, Kucult, Buyut, Kapat };

struct DugmeDuzeni {
  std::vector<Dugme> sol;
  std::vector<Dugme> sag;
};

// Reads the desktop's decoration layout ("menu:minimize,maximize,close"): names before
// the colon go left, after it right; unknown names are skipped, repeats kept once. A
// layout that offers no menu gets one at the far left, so the menu is always reachable.
DugmeDuzeni dugmeDuzeni(std::string_view duzen);

// The size of one side's cluster on the strip: round buttons in a row, a margin at
// either end.
inline constexpr double DUGME_CAPI = 22;
inline constexpr double DUGME_ARALIGI = 6;
inline constexpr double KUME_KENARI = 8;
inline constexpr double KUME_USTU = 4;

// The width of the cluster of `dugmeler`, margins included; zero without buttons.
double kumeGenisligi(const std::vector<Dugme>& dugmeler);

}  // namespace nevo
