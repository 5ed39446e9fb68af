// Part 2.3: the desktop wiring. Every callback holds the delegate weakly.
#include "app/uygulama.hpp"

namespace nevo {

void Uygulama::masaustuKur() {
  auto& kopru = portlar_.masaustu;
  const auto zayif = weak_from_this();
  const auto zayifKopru = kopru.weak_from_this();
  kopru.anaPencere = [zayif]() -> Pencere* {
    auto uygulama = zayif.lock();
    return uygulama ? uygulama->pencere.get() : nullptr;
  };
  kopru.sayfayaGonder = [zayif, &kuyruk = portlar_.kuyruk](const std::string& betik) {
    kuyruk.gonder([zayif, betik] {
      auto uygulama = zayif.lock();
      if (uygulama && uygulama->web) uygulama->web->betikCalistir(betik);
    });
  };
  if (kopru.hizli) {
    kopru.hizli->gonderAyarla([zayif, zayifKopru](const std::string& metin) {
      if (auto uygulama = zayif.lock()) uygulama->pencereyiOneGetir();
      if (auto k = zayifKopru.lock()) k->hizliMesaj(metin);
    });
  }
  if (kopru.menu) {
    kopru.menu->eylemAyarla([zayif, zayifKopru](const std::string& komut) {
      auto uygulama = zayif.lock();
      if (komut == "cik") {
        if (uygulama) uygulama->portlar_.sistem.sonlandir();
        return;
      }
      if (uygulama) uygulama->pencereyiOneGetir();
      if (komut == "ac") return;
      if (auto k = zayifKopru.lock()) k->komut(komut);
    });
  }
  kopru.kur();
}

}  // namespace nevo
