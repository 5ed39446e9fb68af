#pragma once
#include <optional>

#include "temel/geometri.hpp"
#include "temel/pencere.hpp"
#include "app/platform_metinleri.hpp"
#include "temel/sistem.hpp"

namespace nevo {

// Part 1.3: the title strip's rules. The platform view forwards presses in the band here.
class Serit {
 public:
  static constexpr double BUYUTME_SURESI = 0.24;  // ease-out
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
