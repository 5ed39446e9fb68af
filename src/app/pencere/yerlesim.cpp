#include "app/pencere/yerlesim.hpp"

#include <algorithm>

#include "app/pencere/perde.hpp"

namespace nevo {
namespace {
constexpr double SIMGE = Perde::SIMGE;
constexpr double SIMGE_YUKARI = 18;
constexpr double DONEN = 18;
constexpr double DONEN_ASAGI = 54;
}  // namespace

KapYerlesimi yerlestir(Olcu kap, double icerikYuksekligi) {
  const Cerceve tum{0, 0, kap.en, kap.boy};
  const double h = std::max(0.0, kap.boy - icerikYuksekligi);
  return {tum, tum, Cerceve{0, kap.boy - h, kap.en, h}};
}

PerdeYerlesimi perdeYerlesimi(Olcu perde) {
  return {
      Cerceve{(perde.en - SIMGE) / 2, (perde.boy - SIMGE) / 2 + SIMGE_YUKARI, SIMGE, SIMGE},
      Cerceve{(perde.en - DONEN) / 2, (perde.boy - DONEN) / 2 - DONEN_ASAGI, DONEN, DONEN},
  };
}

Cerceve ustSoldan(Cerceve cerceve, double ustBoy) {
  return {cerceve.x, ustBoy - (cerceve.y + cerceve.boy), cerceve.en, cerceve.boy};
}

}  // namespace nevo
