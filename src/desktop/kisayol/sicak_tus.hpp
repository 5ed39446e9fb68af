#pragma once
#include <cstdint>
#include <functional>
#include <memory>

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

// The platform's hot-key registration.
std::unique_ptr<SicakTus> sicakTusOlustur();

}  // namespace nevo
