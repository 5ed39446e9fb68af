#pragma once
#include <string>
#include <vector>

namespace nevo {

// Commands with keys but no entry in the menu bar, whose entries and keys stay as they are.
namespace eylem {
inline constexpr const char* YAKINLASTIR = "yakinlastir";
inline constexpr const char* UZAKLASTIR = "uzaklastir";
inline constexpr const char* GERCEK_BOYUT = "gercek-boyut";
inline constexpr const char* YAZDIR = "yazdir";
}  // namespace eylem

// One command and the characters that run it with the menu's modifier, whichever key
// of the layout (or the keypad) types them. As for the menu's keys, the page has the
// first say.
struct TusKomutu {
  std::string eylem;
  std::vector<std::string> karakterler;
};

std::vector<TusKomutu> tusKomutlari();

}  // namespace nevo
