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

bool Kisayol::tak(std::int64_t kod, std::int64_t mod) {
  birak();
  if (!kisayolDegeriGecerli(kod) || !kisayolDegeriGecerli(mod)) std::abort();
  kayitli_ = tus_.kaydet(static_cast<std::uint32_t>(kod), static_cast<std::uint32_t>(mod));
  return kayitli_;
}

void Kisayol::birak() {
  if (kayitli_) tus_.kaldir();
  kayitli_ = false;
}

void Kisayol::sil() {
  birak();
  tercih_.kisayolKod(-1);
  tercih_.kisayolMod(0);
  tercih_.kisayolAd("");
}

}  // namespace nevo
