#pragma once
#include <cstdint>
#include <optional>

namespace nevo {

// The desktop's choice between light and dark, as the desktop portal's appearance setting
// `color-scheme` states it: 0 no preference, 1 prefer dark, 2 prefer light.
enum class RenkSemasi { Tercihsiz, Koyu, Acik };

// The choice a portal value stands for. Any other value (one a later portal may add) and no
// value at all are no preference: the toolkit's own setting then decides, as without a
// portal.
RenkSemasi renkSemasi(std::optional<std::uint32_t> deger);

// What a choice asks of the toolkit's dark-theme setting. Every change of that setting
// reloads the whole theme (some 20 ms, at launch while the window maps), so a setting that
// already holds is left alone: a dark or light choice sets the value only when it differs,
// and no preference gives the desktop's own value back only when the shell had set one.
enum class KoyuTemaAdimi { Dokunma, KoyuYap, AcikYap, Sifirla };
KoyuTemaAdimi koyuTemaAdimi(RenkSemasi secim, bool simdiKoyu, bool kabukAyarladi);

}  // namespace nevo
