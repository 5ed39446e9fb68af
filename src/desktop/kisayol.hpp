#pragma once
#include <cstdint>
#include <functional>
#include <memory>

#include "desktop/kisayol_kayitcisi.hpp"
#include "desktop/tercih.hpp"
#include "temel/ana_kuyruk.hpp"

namespace nevo {

// What the platform offers for one system-wide hot key: a handler for its presses
// (installed once; it may run anywhere and must only hand on), and one registration of a
// key code with a modifier mask at a time.
class SicakTus {
 public:
  virtual ~SicakTus() = default;
  virtual bool destekli() const = 0;  // the desktop offers a global hot key at all
  virtual void isleyiciKur(std::function<void()> basildi) = 0;
  virtual bool kaydet(std::uint32_t kod, std::uint32_t mod) = 0;  // true when registered
  virtual void kaldir() = 0;  // release the registration, if any
};

// The global hot key: registers the stored shortcut, and its press runs `tetikle` on a
// later turn of the main queue, never inside the platform's handler.
class Kisayol final : public KisayolKayitcisi {
 public:
  Kisayol(SicakTus& tus, Tercih& tercih, AnaKuyruk& kuyruk)
      : tus_(tus), tercih_(tercih), kuyruk_(kuyruk) {}
  Kisayol(const Kisayol&) = delete;
  Kisayol& operator=(const Kisayol&) = delete;
  ~Kisayol() override;

  void tetikleAyarla(std::function<void()> tetikle) override { tetikle_ = std::move(tetikle); }
  void kur() override;
  // Releases the current registration first, then registers `kod` with `mod`; a value
  // outside 0 … 4294967295 is a programming error and stops the program.
  bool tak(std::int64_t kod, std::int64_t mod);
  void birak() override;
  void sil() override;
  bool kayitli() const { return kayitli_; }
  bool destekli() const { return tus_.destekli(); }
  // Registers the stored shortcut again, when one is stored; its result is not looked at.
  void kayitliyiGeriTak();

 private:
  SicakTus& tus_;
  Tercih& tercih_;
  AnaKuyruk& kuyruk_;
  std::function<void()> tetikle_;
  bool kayitli_ = false;
  // The handler's way back: it outlives nothing it points at.
  std::shared_ptr<Kisayol*> kendisi_ = std::make_shared<Kisayol*>(this);
};

// A stored key code or mask outside 0 … 4294967295 is no shortcut: the file may have
// been changed by hand, and it must not stop the program at every launch.
bool kisayolDegeriGecerli(std::int64_t deger);

}  // namespace nevo

namespace nevo {

// The platform's hot-key registration.
std::unique_ptr<SicakTus> sicakTusOlustur();

}  // namespace nevo
