#pragma once
#include <functional>
#include <string>

#include "desktop/durum_ogesi.hpp"

namespace nevo {

const DurumOgesiTasarimi& menuCubuguTasarimi();

// The menu-bar item: shown or hidden with its preference; its entries call `eylem`. Its
// rules: shown at most once, rebuilt each time it is shown again, and an entry
// chosen while nobody listens does nothing.
class MenuCubugu final {
 public:
  explicit MenuCubugu(DurumOgesi& oge) : oge_(oge) {}
  MenuCubugu(const MenuCubugu&) = delete;
  MenuCubugu& operator=(const MenuCubugu&) = delete;

  void uygula(bool goster);
  void eylemAyarla(std::function<void(const std::string&)> eylem) { eylem_ = std::move(eylem); }
  bool gosteriliyor() const { return gosteriliyor_; }

 private:
  DurumOgesi& oge_;
  std::function<void(const std::string&)> eylem_;
  bool gosteriliyor_ = false;
};

}  // namespace nevo
