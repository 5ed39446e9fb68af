#pragma once
#include <memory>
#include <string>

#include "app/pencere/pencere_olaylari.hpp"
#include "app/pencere/pencere_tasarimi.hpp"
#include "app/pencere/perde.hpp"
#include "app/pencere/web_gorunum.hpp"
#include "temel/pencere.hpp"

namespace nevo {

// The parts a window builder hands to the core.
struct PencereParcalari {
  std::unique_ptr<Pencere> pencere;
  std::unique_ptr<WebGorunum> web;
  std::unique_ptr<Perde> perde;
};

class PencereKurucu {
 public:
  virtual ~PencereKurucu() = default;
  // Builds window, web view, strip, curtain and backdrop; nothing is shown or loaded yet.
  virtual PencereParcalari kur(const PencereTasarimi& tasarim, PencereOlaylari& olaylar) = 0;
  // The desktop's layout of the window buttons the shell draws itself
  // ("menu:minimize,maximize,close"); empty where the system draws its own.
  virtual std::string dekorasyonDuzeni() const = 0;
};

}  // namespace nevo

namespace nevo {

// The platform's window builder.
std::unique_ptr<PencereKurucu> pencereKurucuOlustur();

}  // namespace nevo
