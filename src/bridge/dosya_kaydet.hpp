#pragma once
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "temel/atomik_yaz.hpp"

namespace nevo {

// A save dialog shown as its own window, not modal: the suggested name as it
// is, folder creation allowed; the system confirms replacing a file. `bitti` gets the
// chosen path, or nothing when the user cancelled; it is called once for every dialog.
class KayitPaneli {
 public:
  virtual ~KayitPaneli() = default;
  virtual void ac(const std::string& onerilenAd,
                  std::function<void(std::optional<std::string>)> bitti) = 0;
};

// The platform's save dialog.
std::unique_ptr<KayitPaneli> kayitPaneliOlustur();

}  // namespace nevo
