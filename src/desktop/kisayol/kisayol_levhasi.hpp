#pragma once
#include <functional>
#include <memory>
#include <string>

#include "desktop/kisayol/kisayol_metinleri.hpp"
#include "desktop/kisayol/tus.hpp"
#include "temel/geometri.hpp"
#include "temel/pencere.hpp"

namespace nevo {

// Where the recorder's parts sit, in points with the origin at the bottom left.
struct KaydediciYerlesimi {
  static constexpr Olcu pencere{380, 170};
  static constexpr Cerceve baslik{20, 116, 340, 22};
  static constexpr Cerceve ipucu{20, 92, 340, 20};
  static constexpr Cerceve uyari{20, 44, 340, 40};  // two lines at the most
  static constexpr Cerceve vazgec{280, 12, 84, 28};
};

// The recorder's window as the platform shows it: a heading, a hint, a warning line and a
// cancel button over a view that takes every key press before any menu does.
class KisayolLevhasi {
 public:
  struct Olaylar {
    std::function<void(const TusBasimi&)> basildi;
    std::function<void()> vazgecildi;
  };
  virtual ~KisayolLevhasi() = default;
  virtual void ac(Pencere& ustunde, const KisayolMetinleri& metinler, Olaylar olaylar) = 0;
  virtual void uyariYaz(const std::string& uyari) = 0;
  virtual void kapat() = 0;  // end the window; no event follows
};

// The platform's recorder window.
std::unique_ptr<KisayolLevhasi> kisayolLevhasiOlustur();

}  // namespace nevo
