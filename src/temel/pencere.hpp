#pragma once
#include <optional>

#include "temel/geometri.hpp"

namespace nevo {

// The main window, as the core drives it.
class Pencere {
 public:
  virtual ~Pencere() = default;
  virtual void boyutlanabilir(bool evet) = 0;
  virtual void tamEkranIzni(bool evet) = 0;  // full-screen-primary / full-screen-none
  virtual void icerikBoyutu(Olcu olcu) = 0;
  virtual void ortala() = 0;
  virtual void oneGetir() = 0;  // makeKeyAndOrderFront
  virtual bool gorunur() const = 0;
  virtual void kucult() = 0;  // miniaturize
  virtual Cerceve cerceve() const = 0;
  // The visible frame of the window's screen; empty when the window is on no screen.
  virtual std::optional<Cerceve> ekranAlani() const = 0;
  virtual void cerceveyiCanlandir(Cerceve hedef, double sure) = 0;
  virtual void kapat() = 0;             // performClose: hidden, kept for reopening
  virtual void tamEkranDegistir() = 0;  // toggleFullScreen
};

}  // namespace nevo
