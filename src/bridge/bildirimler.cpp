// Part 2.4: notifications. Nothing touches the service without a bundle identifier.
#include "app/uygulama.hpp"
#include "bridge/js_kacir.hpp"
#include "temel/uuid.hpp"

namespace nevo {

void Uygulama::bildirimGonder(const std::string& baslik, const std::string& govde) {
  if (!portlar_.sistem.paketKimligi()) return;
  portlar_.bildirim.gonder(baslik, govde, uuidUret());
}

void Uygulama::bildirimIzniIste() {
  if (!portlar_.sistem.paketKimligi()) {
    bildirimCevapla("desteklenmiyor");
    return;
  }
  portlar_.bildirim.izinIste([zayif = weak_from_this()] {
    if (auto uygulama = zayif.lock()) uygulama->bildirimDurumu();
  });
}

void Uygulama::bildirimDurumu() {
  if (!portlar_.sistem.paketKimligi()) {
    bildirimCevapla("desteklenmiyor");
    return;
  }
  portlar_.bildirim.yetki([zayif = weak_from_this()](BildirimYetkisi yetki) {
    if (auto uygulama = zayif.lock()) uygulama->bildirimCevapla(bildirimKelimesi(yetki));
  });
}

// The word is one of four plain words: it goes in without jsKacir.
void Uygulama::bildirimCevapla(const std::string& kelime) {
  portlar_.kuyruk.gonder([zayif = weak_from_this(), kelime] {
    auto uygulama = zayif.lock();
    if (uygulama && uygulama->web) {
      uygulama->web->betikCalistir(sayfaCagrisi("nevoBildirimDurumu", "'" + kelime + "'"));
    }
  });
}

// A click only brings the application forward; nothing reaches the page.
void Uygulama::bildirimTiklandi() { pencereyiOneGetir(); }

}  // namespace nevo
