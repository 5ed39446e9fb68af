#pragma once
#include <gdk/gdk.h>

#include <cstdint>
#include <optional>

#include "desktop/kisayol/tus.hpp"

namespace nevo {

// GDK key values and modifier state in the values both platforms share, and back.
// Control ↔ Control, Alt ↔ Option, Shift ↔ Shift, Super ↔ Command.

// The shared key code names a place on the keyboard; the toolkit's hardware key code names
// the same place. None for a key the shared codes do not name.
std::optional<guint16> donanimKodu(std::int64_t kod);
std::optional<std::int64_t> konumKodu(guint16 donanim);
// The key code of the key that gives `tusDegeri` in the user's keyboard map; none when no
// key gives it or the shared codes do not name that key.
std::optional<std::int64_t> tusKodu(guint tusDegeri);
// The key value the key in place `kod` gives without modifiers in the first layout.
std::optional<guint> tusDegeri(std::int64_t kod);
std::uint64_t tusBayraklari(GdkModifierType durum);
GdkModifierType gdkDurumu(std::int64_t maske);  // from a hot-key modifier mask
// A key press as the recorder takes it: the key by its place, with the characters it gives
// without modifiers in the layout the user typed in.
std::optional<TusBasimi> tusBasimiCevir(const GdkEventKey& olay);

}  // namespace nevo
