#pragma once
#include <functional>
#include <string>

#include "temel/pencere.hpp"

namespace nevo {

// What the desktop bridge needs of the integrations of Parts 4.2, 4.4, 4.5 and 4.6. A
// platform without one of them yet hands the bridge none, and the bridge skips it.

// The global hot key registrar (Part 4.2).
class KisayolKayitcisi {
 public:
  virtual ~KisayolKayitcisi() = default;
  virtual void tetikleAyarla(std::function<void()> tetikle) = 0;
  virtual void kur() = 0;   // install the handler, register the stored hot key
  virtual void birak() = 0;  // release the registration, keep the preferences
  virtual void sil() = 0;    // release and forget the stored hot key
};

// The quick-entry panel (Part 4.5).
class HizliPanel {
 public:
  virtual ~HizliPanel() = default;
  virtual bool gorunur() const = 0;  // a panel window exists and is visible
  virtual void gizle() = 0;
  virtual void ac() = 0;
  virtual void gonderAyarla(std::function<void(const std::string&)> gonder) = 0;
};

// The menu bar item (Part 4.6).
class MenuCubuguOgesi {
 public:
  virtual ~MenuCubuguOgesi() = default;
  virtual void uygula(bool goster) = 0;
  virtual void eylemAyarla(std::function<void(const std::string&)> eylem) = 0;
};

// The shortcut recorder sheet (Part 4.4); `bitince` runs once when it closes.
class KisayolKaydedici {
 public:
  virtual ~KisayolKaydedici() = default;
  virtual void ac(Pencere& ustunde, std::function<void()> bitince) = 0;
};

}  // namespace nevo
