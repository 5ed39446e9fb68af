#import "app/pencere/pencere_mac.hpp"

#include "app/pencere/tus_komutlari.hpp"
#include "temel/metin_mac.hpp"

namespace nevo::mac {

// Command with the key that types one of a command's characters, whichever key of the
// layout (or the keypad) that is: the characters are read as typed with Shift alone.
std::optional<std::string> tusKomutu(NSEvent* olay) {
  const NSEventModifierFlags kipler = olay.modifierFlags;
  if (!(kipler & NSEventModifierFlagCommand)) return std::nullopt;
  if (kipler & (NSEventModifierFlagControl | NSEventModifierFlagOption)) return std::nullopt;
  const std::string harf = stdMetin(olay.charactersIgnoringModifiers);
  for (const auto& komut : tusKomutlari()) {
    for (const auto& k : komut.karakterler) {
      if (k == harf) return komut.eylem;
    }
  }
  return std::nullopt;
}

// Positive zooms in. A touchpad moves in fractions of a step: each whole one zooms once.
void yakinlastirmaAdimi(double& birikim, double adim, PencereOlaylari& olaylar) {
  birikim += adim;
  for (; birikim >= 1; birikim -= 1) olaylar.tusKomutu(eylem::YAKINLASTIR);
  for (; birikim <= -1; birikim += 1) olaylar.tusKomutu(eylem::UZAKLASTIR);
}

}  // namespace nevo::mac
