#pragma once
#include <cstdint>
#include <optional>
#include <string>

namespace nevo {

// One key press in the values both platforms share: the virtual key code, the key event's
// device-independent modifier flags, and the characters the key gives without modifiers.
// The Linux layer translates its key values and modifier state into these.
struct TusBasimi {
  std::int64_t kod = 0;
  std::uint64_t bayraklar = 0;
  std::optional<std::string> karakterler;
};

// Modifier flags of a key event.
namespace bayrak {
inline constexpr std::uint64_t BUYUK_HARF_KILIDI = 0x10000;
inline constexpr std::uint64_t SHIFT = 0x20000;
inline constexpr std::uint64_t CONTROL = 0x40000;
inline constexpr std::uint64_t OPTION = 0x80000;
inline constexpr std::uint64_t COMMAND = 0x100000;
inline constexpr std::uint64_t SAYI_TUSLARI = 0x200000;
inline constexpr std::uint64_t FONKSIYON = 0x800000;
}  // namespace bayrak

// The modifier mask that hot-key registration takes.
namespace tusMaskesi {
inline constexpr std::int64_t COMMAND = 256;
inline constexpr std::int64_t SHIFT = 512;
inline constexpr std::int64_t OPTION = 2048;
inline constexpr std::int64_t CONTROL = 4096;
}  // namespace tusMaskesi

inline constexpr std::int64_t ESCAPE_KODU = 53;

}  // namespace nevo
