#include "agent/ajan_ortami.hpp"

#include <vector>

#include "temel/dosya_oku.hpp"
#include "temel/karakterler.hpp"

namespace nevo {
namespace {

// One line's two pieces: the name up to the first "=" that closes a non-empty piece, and
// the rest of the line whole.
void satiriUygula(const std::vector<std::string>& satir, Ortam& ortam) {
  std::size_t bas = 0;
  for (std::size_t i = 0; i < satir.size(); ++i) {
    if (satir[i] != "=") continue;
    if (i == bas) {
      bas = i + 1;
      continue;
    }
    if (i + 1 == satir.size()) return;
    std::string ad;
    std::string deger;
    for (std::size_t j = bas; j < i; ++j) ad += satir[j];
    for (std::size_t j = i + 1; j < satir.size(); ++j) deger += satir[j];
    ortam[ad] = deger;
    return;
  }
}

}  // namespace

void ortamDosyasiniUygula(std::string_view metin, Ortam& ortam) {
  const auto karakterler = karakterlereAyir(metin);
  if (!karakterler) return;
  std::vector<std::string> satir;
  for (const auto& karakter : *karakterler) {
    if (karakter != "\n") {
      satir.push_back(karakter);
      continue;
    }
    satiriUygula(satir, ortam);
    satir.clear();
  }
  satiriUygula(satir, ortam);
}

Ortam ajanOrtami(const AjanYerleri& yerler) {
  Ortam ortam{{"PATH", "/usr/bin:/bin:/usr/sbin:/sbin"},
              {"HOME", yerler.ev},
              {"KOPRU_ADRES", yerler.kopruAdresi},
              {"KOPRU_KOK", yerler.ev + "/Nevo"},
              {"NEVO_VERI", yerler.veriDizini}};
  if (!yerler.kaynakDizini) return ortam;
  if (auto metin = dosyaOku(*yerler.kaynakDizini + "/" + AJAN_ORTAM_DOSYASI)) {
    ortamDosyasiniUygula(*metin, ortam);
  }
  return ortam;
}

}  // namespace nevo
