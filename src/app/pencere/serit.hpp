#pragma once
#include <optional>

#include "app/platform_metinleri.hpp"
#include "temel/geometri.hpp"
#include "temel/pencere.hpp"
#include "temel/sistem.hpp"

namespace nevo {

// A timing curve: the cubic Bézier from (0, 0) to (1, 1) through the control points
// (x1, y1) and (x2, y2), x being the share of the duration and y the share of the change.
struct ZamanEgrisi {
  double x1, y1, x2, y2;

  // The share of the change done once `oran` (0…1) of the duration has passed.
  double operator()(double oran) const;
};

// The title strip's rules. The platform view forwards presses in the band here.
class Serit {
 public:
  static constexpr double BUYUTME_SURESI = 0.24;
  // The zoom's pace on every platform: fast at first, settling gently onto the target
  // (ease-out).
  static constexpr ZamanEgrisi BUYUTME_EGRISI{0.0, 0.0, 0.58, 1.0};
  enum class Sonuc { Surukle, Bitti };

  Serit(Pencere& pencere, const Sistem& sistem, const PlatformMetinleri& metinler);
  Serit(const Serit&) = delete;
  Serit& operator=(const Serit&) = delete;

  // A press with the given click count. `Surukle`: the platform starts a window drag.
  Sonuc basildi(int tiklamaSayisi);
  // The zoom toggle: fill the screen's visible frame, or go back to the remembered frame.
  void buyutKucult();
  bool buyutulmus() const { return oncekiCerceve_.has_value(); }

 private:
  Pencere& pencere_;
  const Sistem& sistem_;
  const PlatformMetinleri& metinler_;
  std::optional<Cerceve> oncekiCerceve_;
};

}  // namespace nevo
