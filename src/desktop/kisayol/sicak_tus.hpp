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
  // Whether the system took the registration.
  using Sonuc = std::function<void(bool kabul)>;
  virtual ~SicakTus() = default;
  virtual bool destekli() const = 0;  // the desktop offers a global hot key at all
  virtual void isleyiciKur(std::function<void()> basildi) = 0;
  // Registers `kod` with `mod` in place of any earlier registration. `sonuc` receives the
  // verdict once: during the call where the platform knows it at once, on a later turn of
  // the main loop where the desktop answers over its bus, which is never waited on. After
  // `kaldir` or a new `kaydet` an earlier verdict never comes.
  virtual void kaydet(std::uint32_t kod, std::uint32_t mod, Sonuc sonuc) = 0;
  virtual void kaldir() = 0;  // release the registration, also one still waiting, if any
};

// The platform's hot-key registration.
std::unique_ptr<SicakTus> sicakTusOlustur();

}  // namespace nevo
