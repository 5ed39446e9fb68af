#include "desktop/kisayol/kisayol.hpp"

#include <cstdlib>

namespace nevo {

bool kisayolDegeriGecerli(std::int64_t deger) { return deger >= 0 && deger <= 4294967295; }

void Kisayol::kur() {
  tus_.isleyiciKur([&kuyruk = kuyruk_, zayif = std::weak_ptr(tetikle_)] {
    kuyruk.gonder([zayif] {
      if (const auto tetikle = zayif.lock(); tetikle && *tetikle) (*tetikle)();
    });
  });
  kayitliyiGeriTak();
}

void Kisayol::kayitliyiGeriTak() {
  const auto depo = tercih_.hepsi();
  if (!kisayolDegeriGecerli(depo.kisayolKod) || !kisayolDegeriGecerli(depo.kisayolMod)) return;
  tak(depo.kisayolKod, depo.kisayolMod);
}

void Kisayol::tak(std::int64_t kod, std::int64_t mod, SicakTus::Sonuc sonuc) {
  birak();
  if (!kisayolDegeriGecerli(kod) || !kisayolDegeriGecerli(mod)) std::abort();
  const unsigned nesil = durum_->nesil;
  durum_->bekliyor = true;
  tus_.kaydet(static_cast<std::uint32_t>(kod), static_cast<std::uint32_t>(mod),
              [zayif = std::weak_ptr(durum_), nesil, sonuc = std::move(sonuc)](bool kabul) {
                const auto durum = zayif.lock();
                if (!durum || durum->nesil != nesil || !durum->bekliyor) return;
                durum->bekliyor = false;
                durum->kayitli = kabul;
                if (sonuc) sonuc(kabul);
              });
}

// A verdict still on its way is for a registration that no longer is: it is dropped.
void Kisayol::birak() {
  if (durum_->kayitli || durum_->bekliyor) tus_.kaldir();
  ++durum_->nesil;
  durum_->kayitli = false;
  durum_->bekliyor = false;
}

void Kisayol::sil() {
  birak();
  tercih_.kisayolKod(-1);
  tercih_.kisayolMod(0);
  tercih_.kisayolAd("");
}

}  // namespace nevo
