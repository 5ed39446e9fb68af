#include "bridge/masaustu_gtk.hpp"

#include "yapilandirma.hpp"

namespace nevo {

MasaustuGtk::MasaustuGtk(GApplication* uygulama, const Sistem& sistem)
    : girisOgesi(yapilandirma::UYGULAMA_KIMLIGI),
      baslangic(girisOgesi, sistem),
      gucKilidi(yapilandirma::UYGULAMA_KIMLIGI),
      masaustu(Masaustu::olustur({tercih, baslangic, gucKilidi})),
      bildirim(uygulama) {}

}  // namespace nevo
