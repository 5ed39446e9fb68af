#pragma once
#include <functional>
#include <memory>
#include <string>

#include "temel/geometri.hpp"

namespace nevo {

// The panel's size, its field's place (origin at the bottom left), its corner radius, the
// field's placeholder and the window's name (which no title bar shows; the desktop's hot-key
// settings name the shortcut after it).
struct HizliPanelYerlesimi {
  static constexpr Olcu pencere{620, 74};
  static constexpr Cerceve alan{20, 18, 580, 38};
  static constexpr double koseYaricapi = 14;
  static constexpr const char* yerTutucu = "Nevo'ye sor…";
  static constexpr const char* ad = "Nevo hızlı giriş";
};

// The panel's window as the platform shows it: created on first showing and kept; Escape
// and the application losing focus hide it by themselves.
class HizliGorunum {
 public:
  virtual ~HizliGorunum() = default;
  // Return in the field calls `gonderildi`; set once, before the first showing.
  virtual void gonderildiAyarla(std::function<void()> gonderildi) = 0;
  virtual bool gorunur() const = 0;
  virtual void goster() = 0;  // centre, bring forward with the focus in the field
  virtual void gizle() = 0;
  virtual std::string metin() const = 0;
  virtual void metinYaz(const std::string& metin) = 0;
};

// The platform's quick-entry window.
std::unique_ptr<HizliGorunum> hizliGorunumOlustur();

}  // namespace nevo
