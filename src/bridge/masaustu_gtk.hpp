#pragma once
#include <gio/gio.h>

#include <memory>

#include "temel/sistem.hpp"
#include "bridge/bildirim_merkezi_gtk.hpp"
#include "bridge/kayit_paneli_gtk.hpp"
#include "bridge/masaustu.hpp"
#include "desktop/giris_ogesi_gtk.hpp"
#include "desktop/guc_kilidi_gtk.hpp"
#include "desktop/tercih_deposu_gtk.hpp"

namespace nevo {

// The desktop bridge over the integrations Linux has so far (hot key, quick-entry panel,
// menu bar item and recorder join with Parts 4.2–4.6), with the application's
// notification and save-dialog ports.
struct MasaustuGtk {
  MasaustuGtk(GApplication* uygulama, const Sistem& sistem);
  MasaustuGtk(const MasaustuGtk&) = delete;
  MasaustuGtk& operator=(const MasaustuGtk&) = delete;

  TercihDeposuGtk tercihDeposu;
  Tercih tercih{tercihDeposu};
  GirisOgesiGtk girisOgesi;
  Baslangic baslangic;
  GucKilidiGtk gucKilidi;
  std::shared_ptr<Masaustu> masaustu;  // Masaustu.ortak
  BildirimMerkeziGtk bildirim;
  KayitPaneliGtk kayitPaneli;
};

}  // namespace nevo
