#pragma once
#include <cstdint>
#include <functional>
#include <memory>

#include "desktop/kisayol/sicak_tus.hpp"
#include "desktop/tercih.hpp"
#include "temel/ana_kuyruk.hpp"

namespace nevo {

// The global hot key: registers the stored shortcut, and its press runs `tetikle` on a
// later turn of the main queue, never inside the platform's handler.
class Kisayol final {
 public:
  Kisayol(SicakTus& tus, Tercih& tercih, AnaKuyruk& kuyruk)
      : tus_(tus), tercih_(tercih), kuyruk_(kuyruk) {}
  Kisayol(const Kisayol&) = delete;
  Kisayol& operator=(const Kisayol&) = delete;

  void tetikleAyarla(std::function<void()> tetikle) { *tetikle_ = std::move(tetikle); }
  void kur();
  // Releases the current registration first, then registers `kod` with `mod`; a value
  // outside 0 … 4294967295 is a programming error and stops the program. `sonuc`, when
  // given, receives whether the system took it: at once, or later where the desktop
  // answers over its bus. A release or a new registration first means it never runs.
  void tak(std::int64_t kod, std::int64_t mod, SicakTus::Sonuc sonuc = {});
  void birak();
  void sil();
  bool kayitli() const { return durum_->kayitli; }
  bool bekliyor() const { return durum_->bekliyor; }  // a verdict has not come yet
  bool destekli() const { return tus_.destekli(); }
  // Registers the stored shortcut again, when one is stored; its result is not looked at.
  void kayitliyiGeriTak();

 private:
  struct Durum {
    unsigned nesil = 0;  // counts registrations and releases: only the last one's verdict counts
    bool bekliyor = false;
    bool kayitli = false;
  };

  SicakTus& tus_;
  Tercih& tercih_;
  AnaKuyruk& kuyruk_;
  // The handler holds it weakly: a press that arrives after the hot key is gone calls nothing.
  std::shared_ptr<std::function<void()>> tetikle_ = std::make_shared<std::function<void()>>();
  // A verdict holds it weakly: one that comes after the hot key is gone changes nothing.
  std::shared_ptr<Durum> durum_ = std::make_shared<Durum>();
};

// A stored key code or mask outside 0 … 4294967295 is no shortcut: the file may have
// been changed by hand, and it must not stop the program at every launch.
bool kisayolDegeriGecerli(std::int64_t deger);

}  // namespace nevo
