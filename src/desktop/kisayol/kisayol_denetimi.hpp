#pragma once
#include <cstdint>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>

#include "desktop/kisayol/kisayol_metinleri.hpp"
#include "desktop/kisayol/tus.hpp"

namespace nevo {

// The verdict on a key press offered as the global shortcut: acceptable with its key code,
// modifier mask and display name, or refused with a message for the user.
struct KisayolKarari {
  bool tamam = false;
  std::int64_t kod = 0;
  std::int64_t mod = 0;
  std::string ad;
  std::string mesaj;  // the refusal's text

  static KisayolKarari kabul(std::int64_t kod, std::int64_t mod, std::string ad) {
    return {true, kod, mod, std::move(ad), {}};
  }
  static KisayolKarari red(std::string mesaj) { return {false, 0, 0, {}, std::move(mesaj)}; }
};

// The system's own shortcuts: an object whose every member is one shortcut,
// {"enabled": bool, "value": {"parameters": [character, key code, modifier flags]}}.
// Empty when the system's settings cannot be read: the check then accepts more.
using SistemKisayollari = std::optional<nlohmann::json>;

// Decides whether `tus` may become the global hot key. Registers and stores nothing.
KisayolKarari kisayolDenetle(const TusBasimi& tus, const SistemKisayollari& sistem,
                             const KisayolMetinleri& metinler);

// The mask that hot-key registration takes for the modifier flags of a key event.
std::int64_t tusMaskesiHesapla(std::uint64_t bayraklar);

}  // namespace nevo

namespace nevo {

// The system's own shortcuts as the platform keeps them; empty when they cannot be read.
SistemKisayollari sistemKisayollariOku();

}  // namespace nevo
