#pragma once
#include <functional>
#include <memory>
#include <string>

#include "app/pencere/pencere_olaylari.hpp"
#include "app/pencere/pencere_tasarimi.hpp"
#include "app/pencere/perde.hpp"
#include "app/pencere/web_gorunum.hpp"
#include "temel/pencere.hpp"

namespace nevo {

// The window and its web view, handed to the core as soon as the web view exists.
struct PencereParcalari {
  std::unique_ptr<Pencere> pencere;
  std::unique_ptr<WebGorunum> web;
};

class PencereKurucu {
 public:
  virtual ~PencereKurucu() = default;
  using WebKuruldu = std::function<void(PencereParcalari parcalar)>;
  // Builds window, web view, strip, curtain and backdrop and returns the curtain; nothing
  // is shown yet. The window and the web view go to `webKuruldu` as soon as the web view
  // exists, before the curtain and the strip are built: the page's load starts there.
  virtual std::unique_ptr<Perde> kur(const PencereTasarimi& tasarim, PencereOlaylari& olaylar,
                                     const WebKuruldu& webKuruldu) = 0;
  // The desktop's layout of the window buttons the shell draws itself
  // ("menu:minimize,maximize,close"); empty where the system draws its own.
  virtual std::string dekorasyonDuzeni() const = 0;
};

}  // namespace nevo

namespace nevo {

// The platform's window builder.
std::unique_ptr<PencereKurucu> pencereKurucuOlustur();

}  // namespace nevo
