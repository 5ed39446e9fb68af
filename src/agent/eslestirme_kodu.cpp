#include "agent/eslestirme_kodu.hpp"

#include "temel/karakterler.hpp"

namespace nevo {

std::optional<std::string> eslestirmeKodu(std::string_view kod) {
  const auto karakterler = karakterlereAyir(buyukHarfe(kod));
  if (!karakterler) return std::nullopt;
  std::string sonuc;
  std::size_t sayi = 0;
  for (const auto& karakter : *karakterler) {
    if (!harfVeyaSayi(karakter)) continue;
    if (++sayi > EN_UZUN_KOD) return std::nullopt;
    sonuc += karakter;
  }
  if (sayi < EN_KISA_KOD) return std::nullopt;
  return sonuc;
}

}  // namespace nevo
