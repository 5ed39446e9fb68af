#include "desktop/hizli_pencere.hpp"

#include "temel/karakterler.hpp"

namespace nevo {

HizliPencere::HizliPencere(HizliGorunum& gorunum) : gorunum_(gorunum) {
  gorunum_.gonderildiAyarla([this] { gonderildi(); });
}

void HizliPencere::ac() {
  gorunum_.metinYaz("");
  gorunum_.goster();
}

void HizliPencere::acKapat() {
  if (gorunur()) {
    gizle();
  } else {
    ac();
  }
}

void HizliPencere::gonderildi() {
  const auto metin = kirp(gorunum_.metin());
  if (metin.empty()) return;
  gorunum_.metinYaz("");
  gorunum_.gizle();
  if (gonder_) gonder_(metin);
}

}  // namespace nevo
