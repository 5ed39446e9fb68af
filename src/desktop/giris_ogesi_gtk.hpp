#pragma once
#include <string>

#include "desktop/baslangic.hpp"

namespace nevo {

// Launch at login as an XDG autostart entry, $XDG_CONFIG_HOME/autostart/<app id>.desktop.
// Never waits for approval.
class GirisOgesiGtk final : public GirisOgesi {
 public:
  explicit GirisOgesiGtk(const std::string& uygulamaKimligi);
  bool sistemDestekler() const override { return true; }
  GirisOgesiDurumu durum() const override;
  std::optional<std::string> kaydet() override;
  std::optional<std::string> kaydiSil() override;

 private:
  std::string dosya_;
};

}  // namespace nevo
