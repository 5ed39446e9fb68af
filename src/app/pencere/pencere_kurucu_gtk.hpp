#pragma once
#include <gtk/gtk.h>

#include "app/pencere/pencere_kurucu.hpp"

namespace nevo {

// Builds window, web view, strip, curtain and buttons, stacked in the order the core
// gives.
class PencereKurucuGtk final : public PencereKurucu {
 public:
  explicit PencereKurucuGtk(GtkApplication* uygulama) : uygulama_(uygulama) {}
  std::unique_ptr<Perde> kur(const PencereTasarimi& tasarim, PencereOlaylari& olaylar,
                             const WebKuruldu& webKuruldu) override;
  std::string dekorasyonDuzeni() const override;

 private:
  GtkApplication* uygulama_;
};

}  // namespace nevo
