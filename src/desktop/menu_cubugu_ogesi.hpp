#pragma once
#include <functional>
#include <string>

namespace nevo {

// The menu-bar item: shown or hidden with its preference; its entries call `eylem`.
class MenuCubuguOgesi {
 public:
  virtual ~MenuCubuguOgesi() = default;
  virtual void uygula(bool goster) = 0;
  virtual void eylemAyarla(std::function<void(const std::string&)> eylem) = 0;
};

}  // namespace nevo
