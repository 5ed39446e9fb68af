#pragma once
#include <functional>

#include "temel/pencere.hpp"

namespace nevo {

// The shortcut recorder, attached to the main window; `bitince` runs once when it closes.
class KisayolKaydedici {
 public:
  virtual ~KisayolKaydedici() = default;
  virtual void ac(Pencere& ustunde, std::function<void()> bitince) = 0;
};

}  // namespace nevo
