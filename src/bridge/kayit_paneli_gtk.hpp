#pragma once
#include "bridge/dosya_kaydet.hpp"

namespace nevo {

// The save dialog: GtkFileChooserNative, which uses the desktop
// portal where there is one; its own window, not modal, asks before replacing a file.
class KayitPaneliGtk final : public KayitPaneli {
 public:
  void ac(const std::string& onerilenAd,
          std::function<void(std::optional<std::string>)> bitti) override;
};

}  // namespace nevo
