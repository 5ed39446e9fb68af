#pragma once
#include <functional>
#include <string>

#include "desktop/kisayol/kisayol.hpp"
#include "desktop/kisayol/kisayol_denetimi.hpp"
#include "desktop/kisayol/kisayol_levhasi.hpp"
#include "desktop/kisayol/kisayol_metinleri.hpp"
#include "desktop/kisayol/tus.hpp"
#include "desktop/tercih.hpp"
#include "temel/pencere.hpp"

namespace nevo {

// The shortcut recorder, attached to the main window; `bitince` runs once when it closes.
// Its rules: Escape cancels, a refused combination keeps it open with its
// reason, an accepted one is registered and then stored, a refused registration brings the
// stored hot key back.
class KisayolKaydedici final {
 public:
  struct Portlar {
    KisayolLevhasi& levha;
    Kisayol& kisayol;
    Tercih& tercih;
    const KisayolMetinleri& metinler;
    std::function<SistemKisayollari()> sistemKisayollari;
  };
  explicit KisayolKaydedici(Portlar portlar) : p_(std::move(portlar)) {}
  KisayolKaydedici(const KisayolKaydedici&) = delete;
  KisayolKaydedici& operator=(const KisayolKaydedici&) = delete;

  void ac(Pencere& ustunde, std::function<void()> bitince);
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
