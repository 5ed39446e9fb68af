#include "app/pencere/dugme_simgesi.hpp"

namespace nevo {

// Drawn on a grid of 16 and scaled to the square.
std::vector<Cizgi> dugmeSimgesi(Dugme dugme, double kenar) {
  const double o = kenar / 16;
  switch (dugme) {
    case Dugme::Kapat:
      return {{4 * o, 4 * o, 12 * o, 12 * o}, {12 * o, 4 * o, 4 * o, 12 * o}};
    case Dugme::Kucult:
      return {{4 * o, 11 * o, 12 * o, 11 * o}};
    case Dugme::Buyut:
      return {{4.5 * o, 4.5 * o, 11.5 * o, 4.5 * o},
              {11.5 * o, 4.5 * o, 11.5 * o, 11.5 * o},
              {11.5 * o, 11.5 * o, 4.5 * o, 11.5 * o},
              {4.5 * o, 11.5 * o, 4.5 * o, 4.5 * o}};
    case Dugme::Menu:
      return {{3 * o, 4.5 * o, 13 * o, 4.5 * o},
              {3 * o, 8 * o, 13 * o, 8 * o},
              {3 * o, 11.5 * o, 13 * o, 11.5 * o}};
  }
  return {};
}

double simgeKalinligi(double kenar) { return 1.5 * kenar / 16; }

}  // namespace nevo
