#pragma once
#include <gdk/gdk.h>

#include <cstdint>
#include <optional>

#include "desktop/kisayol/tus.hpp"

namespace nevo {

// GDK key values and modifier state in the values both platforms share, and back.
// Control ↔ Control, Alt ↔ Option, Shift ↔ Shift, Super ↔ Command.

// The key code of the key that gives `tusDegeri` without modifiers; none for a key the
// shared codes do not name.
std::optional<std::int64_t> tusKodu(guint tusDegeri);
// The key value that key code `kod` stands for.
std::optional<guint> tusDegeri(std::int64_t kod);
std::uint64_t tusBayraklari(GdkModifierType durum);
GdkModifierType gdkDurumu(std::int64_t maske);  // from a hot-key modifier mask
// A key press as the recorder takes it: the key as it is without modifiers.
std::optional<TusBasimi> tusBasimiCevir(const GdkEventKey& olay);

}  // namespace nevo
