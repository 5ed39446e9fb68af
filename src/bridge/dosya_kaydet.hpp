#pragma once
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace nevo {

// A save dialog shown as its own window, not modal: the suggested name as it
// is, folder creation allowed; the system confirms replacing a file. `bitti` gets the
// chosen path, or nothing when the user cancelled.
class KayitPaneli {
 public:
  virtual ~KayitPaneli() = default;
  virtual void ac(const std::string& onerilenAd,
                  std::function<void(std::optional<std::string>)> bitti) = 0;
};

// Writes the bytes to a temporary file beside `yol` and renames it over `yol`; on failure
// nothing is left behind and false is returned.
bool atomikYaz(const std::string& yol, std::string_view icerik);

}  // namespace nevo

namespace nevo {

// The platform's save dialog.
std::unique_ptr<KayitPaneli> kayitPaneliOlustur();

}  // namespace nevo
