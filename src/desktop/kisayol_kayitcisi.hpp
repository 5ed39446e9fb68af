#pragma once
#include <functional>

namespace nevo {

// The global hot key: while registered, its press calls `tetikle` on the main thread.
class KisayolKayitcisi {
 public:
  virtual ~KisayolKayitcisi() = default;
  virtual void tetikleAyarla(std::function<void()> tetikle) = 0;
  virtual void kur() = 0;    // install the handler, register the stored hot key
  virtual void birak() = 0;  // release the registration, keep the preferences
  virtual void sil() = 0;    // release and forget the stored hot key
};

}  // namespace nevo
