#pragma once
#include <gtk/gtk.h>

#include <memory>
#include <string>

#include "app/menu_kurucu_gtk.hpp"
#include "app/pencere_kurucu_gtk.hpp"
#include "app/sistem_gtk.hpp"
#include "app/uygulama.hpp"
#include "bridge/masaustu_gtk.hpp"
#include "temel/ana_kuyruk_gtk.hpp"
#include "temel/glib_gtk.hpp"

namespace nevo {

// GtkApplication's lifecycle carried to `Uygulama`: startup is launching, a later
// activation (a second `nevo`) is reopening, shutdown (also SIGTERM, SIGINT) is quitting.
class GtkKabuk {
 public:
  explicit GtkKabuk(std::string adres);
  GtkKabuk(const GtkKabuk&) = delete;
  GtkKabuk& operator=(const GtkKabuk&) = delete;

  int calistir(int argc, char** argv);

 private:
  void basla();
  void etkinlesti();
  void kapan();

  std::string adres_;
  GNesne<GtkApplication> uygulama_;
  std::unique_ptr<AnaKuyrukGtk> kuyruk_;
  std::unique_ptr<SistemGtk> sistem_;
  std::unique_ptr<PencereKurucuGtk> kurucu_;
  std::unique_ptr<MenuKurucuGtk> menu_;
  std::unique_ptr<MasaustuGtk> masaustu_;
  std::shared_ptr<Uygulama> temsilci_;
  bool ilkEtkinlesme_ = true;
};

}  // namespace nevo
