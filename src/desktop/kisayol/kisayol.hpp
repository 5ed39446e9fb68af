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
  // outside 0 … 4294967295 is a programming error and stops the program.
  bool tak(std::int64_t kod, std::int64_t mod);
  void birak();
  void sil();
  bool kayitli() const { return kayitli_; }
  bool destekli() const { return tus_.destekli(); }
  // Registers the stored shortcut again, when one is stored; its result is not looked at.
  void kayitliyiGeriTak();

 private:
  SicakTus& tus_;
  Tercih& tercih_;
  AnaKuyruk& kuyruk_;
  // The handler holds it weakly: a press that arrives after the hot key is gone calls nothing.
  std::shared_ptr<std::function<void()>> tetikle_ = std::make_shared<std::function<void()>>();
  bool kayitli_ = false;
};

// A stored key code or mask outside 0 … 4294967295 is no shortcut: the file may have
// been changed by hand, and it must not stop the program at every launch.
bool kisayolDegeriGecerli(std::int64_t deger);

}  // namespace nevo
