#pragma once
#include <string>

#include "temel/pencere.hpp"

namespace nevo {

// The desktop bridge's way to the page and to the main window.
class SayfaYolu {
 public:
  virtual ~SayfaYolu() = default;
  // Runs `betik` in the main web view on a later turn of the main queue, in sending order.
  virtual void sayfayaGonder(const std::string& betik) = 0;
  // The main window; none before it is built.
  virtual Pencere* anaPencere() = 0;
};

}  // namespace nevo
