#pragma once
#include <optional>
#include <string>

#include "temel/pencere.hpp"

namespace nevo {

// Where a page message came from, as the web view reports it.
struct MesajKaynagi {
  bool anaCerceve = true;           // posted by the view's main frame
  std::optional<std::string> host;  // the posting document's host; none: the view's address
};

// The application's main web view and window, as the page bridge reaches them.
class Sayfa {
 public:
  virtual ~Sayfa() = default;
  // The main web view's current address; none without a view.
  virtual std::optional<std::string> sayfaAdresi() const = 0;
  // Runs `betik` in the main web view now; nothing happens without a view.
  virtual void sayfadaCalistir(const std::string& betik) = 0;
  virtual Pencere* anaPencere() = 0;
  // Activates the application and brings the main window to the front.
  virtual void pencereyiOneGetir() = 0;
};

}  // namespace nevo
