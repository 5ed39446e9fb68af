#include "app/pencere/tus_komutlari.hpp"

namespace nevo {

// "=" zooms in too: it shares its key with "+" where that needs Shift.
std::vector<TusKomutu> tusKomutlari() {
  return {{eylem::YAKINLASTIR, {"+", "="}},
          {eylem::UZAKLASTIR, {"-"}},
          {eylem::GERCEK_BOYUT, {"0"}},
          {eylem::YAZDIR, {"p"}}};
}

}  // namespace nevo
