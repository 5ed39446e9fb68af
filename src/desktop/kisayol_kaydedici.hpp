#pragma once
#include <functional>
#include <memory>
#include <string>

#include "desktop/kisayol.hpp"
#include "desktop/kisayol_denetimi.hpp"
#include "desktop/kisayol_metinleri.hpp"
#include "desktop/tercih.hpp"
#include "desktop/tus.hpp"
#include "temel/geometri.hpp"
#include "temel/pencere.hpp"

namespace nevo {

// The shortcut recorder, attached to the main window; `bitince` runs once when it closes.
class KisayolKaydedici {
 public:
  virtual ~KisayolKaydedici() = default;
  virtual void ac(Pencere& ustunde, std::function<void()> bitince) = 0;
};

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

// The recorder's rules: Escape cancels, a refused combination keeps it open with its
// reason, an accepted one is registered and then stored, a refused registration brings the
// stored hot key back.
class LevhaliKaydedici final : public KisayolKaydedici {
 public:
  struct Portlar {
    KisayolLevhasi& levha;
    Kisayol& kisayol;
    Tercih& tercih;
    const KisayolMetinleri& metinler;
    std::function<SistemKisayollari()> sistemKisayollari;
  };
  explicit LevhaliKaydedici(Portlar portlar) : p_(std::move(portlar)) {}
  LevhaliKaydedici(const LevhaliKaydedici&) = delete;
  LevhaliKaydedici& operator=(const LevhaliKaydedici&) = delete;

  void ac(Pencere& ustunde, std::function<void()> bitince) override;
  void basildi(const TusBasimi& tus);
  void kapat(bool kaydedildi);
  bool acik() const { return acik_; }
  bool sonSonuc() const { return sonSonuc_; }

 private:
  void kabulEt(const KisayolKarari& karar);

  Portlar p_;
  std::function<void()> bitince_;
  bool acik_ = false;
  bool sonSonuc_ = false;
};

}  // namespace nevo

namespace nevo {

// The platform's recorder window.
std::unique_ptr<KisayolLevhasi> kisayolLevhasiOlustur();

}  // namespace nevo
