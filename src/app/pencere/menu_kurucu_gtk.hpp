#pragma once
#include <gtk/gtk.h>

#include <functional>
#include <string>

#include "app/pencere/menu_modeli.hpp"
#include "temel/glib_gtk.hpp"

namespace nevo {

// The menu bar as a GMenu of application actions with Control accelerators (Command
// becomes Control on Linux). The strip's menu button shows the same model.
class MenuKurucuGtk final : public MenuKurucu {
 public:
  using Secim = std::function<void(const std::string&)>;
  MenuKurucuGtk(GtkApplication* uygulama, Secim secim)
      : uygulama_(uygulama), secim_(std::move(secim)) {}
  MenuKurucuGtk(const MenuKurucuGtk&) = delete;
  MenuKurucuGtk& operator=(const MenuKurucuGtk&) = delete;

  void kur(const std::vector<AltMenu>& menu) override;

 private:
  void eylemEkle(const MenuOgesi& oge);
  GtkApplication* uygulama_;
  Secim secim_;
  SinyalBaglantilari baglantilar_;
};

}  // namespace nevo
