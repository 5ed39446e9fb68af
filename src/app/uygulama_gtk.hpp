#pragma once
#include <gtk/gtk.h>

#include <memory>
#include <string>

#include "app/menu_gtk.hpp"
#include "app/pencere_gtk.hpp"
#include "app/sistem_gtk.hpp"
#include "app/uygulama.hpp"
#include "bridge/bildirim_merkezi_gtk.hpp"
#include "bridge/kayit_paneli_gtk.hpp"
#include "desktop/giris_ogesi_gtk.hpp"
#include "desktop/guc_kilidi_gtk.hpp"
#include "desktop/tercih_deposu_gtk.hpp"
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
  void masaustuHazirla();

  std::string adres_;
  GNesne<GtkApplication> uygulama_;
  std::unique_ptr<GtkAnaKuyruk> kuyruk_;
  std::unique_ptr<SistemGtk> sistem_;
  std::unique_ptr<PencereKurucuGtk> kurucu_;
  std::unique_ptr<MenuGtk> menu_;
  std::unique_ptr<TercihDeposuGtk> tercihDeposu_;
  std::unique_ptr<Tercih> tercih_;
  std::unique_ptr<GirisOgesiGtk> girisOgesi_;
  std::unique_ptr<Baslangic> baslangic_;
  std::unique_ptr<GucKilidiGtk> gucKilidi_;
  std::shared_ptr<Masaustu> masaustu_;
  std::unique_ptr<BildirimMerkeziGtk> bildirim_;
  std::unique_ptr<KayitPaneliGtk> kayitPaneli_;
  std::shared_ptr<Uygulama> temsilci_;
  bool ilkEtkinlesme_ = true;
};

}  // namespace nevo
