#pragma once
#include <string>
#include <string_view>
#include <vector>

namespace nevo {

// The programs that may open the notification settings of the desktops named in
// `XDG_CURRENT_DESKTOP` (a colon-separated list, most specific first), best first: each
// desktop's notification page, then its general settings. The first one installed is run.
std::vector<std::vector<std::string>> bildirimAyarlariKomutlari(std::string_view masaustleri);

}  // namespace nevo
