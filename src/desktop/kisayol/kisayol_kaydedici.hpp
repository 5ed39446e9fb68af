#pragma once
#include <functional>
#include <memory>
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
// stored hot key back. Where the desktop answers later, the recorder stays open until the
// verdict comes and asks nothing more meanwhile; closing it first withdraws the request.
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
  bool bekliyor() const { return bekliyor_; }
  bool sonSonuc() const { return sonSonuc_; }

 private:
  void kabulEt(const KisayolKarari& karar);
  void sonucGeldi(const KisayolKarari& karar, bool kabul);
  void bekleneniGeriCek();

  Portlar p_;
  std::function<void()> bitince_;
  bool acik_ = false;
  bool bekliyor_ = false;
  bool sonSonuc_ = false;
  // A verdict holds it weakly: one that comes after the recorder is gone does nothing.
  std::shared_ptr<KisayolKaydedici*> kendisi_ = std::make_shared<KisayolKaydedici*>(this);
};

}  // namespace nevo
