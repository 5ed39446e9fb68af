#pragma once
#include <memory>
#include <optional>
#include <string>

namespace nevo {

// What the core asks of the operating system.
class Sistem {
 public:
  virtual ~Sistem() = default;
  virtual void etkinlestir() = 0;  // activate the application, ignoring other applications
  virtual void disaridaAc(const std::string& adres) = 0;  // the system's default handler
  virtual void sonlandir() = 0;                           // the normal termination path
  // The file manager shows the folder of `yol` with that file selected, where the desktop
  // can; otherwise the folder opens.
  virtual void klasordeGoster(const std::string& yol) = 0;
  virtual std::optional<std::string> paketKimligi() const = 0;
  virtual void hakkindaGoster() = 0;    // the standard about panel
  virtual void gizle() = 0;             // hide the application
  virtual void digerleriniGizle() = 0;  // hide the other applications
  // The desktop's title-bar double-click choice, read afresh each time.
  virtual std::optional<std::string> ciftTiklamaTercihi() const = 0;
  // A programming error (an address that does not parse): says why and stops the process.
  [[noreturn]] virtual void olumcul(const std::string& neden) = 0;
};

}  // namespace nevo

namespace nevo {

// The running application as the platform knows it.
std::unique_ptr<Sistem> sistemOlustur();

}  // namespace nevo
