#pragma once
#include <optional>
#include <string>
#include <string_view>

namespace nevo {

// What the web view knows of a navigation besides its address.
struct GezinmeKaynagi {
  // True in the main frame, false in a sub-frame; none when the engine does not say.
  std::optional<bool> anaCerceve;
  bool kullaniciHareketi = false;  // started by a click or a key press
};

enum class GezinmeKarari {
  Kal,         // the navigation goes on in the view
  DisaridaAc,  // the system's handler opens the address; the view cancels it
  Iptal,       // cancelled, nothing opened
};

// True when a navigation to `istek` stays in the view: the application's host, the sign-in
// provider's, `about:` pages, and `blob:` addresses the application's documents made. The
// application's host is compared in lower case, as the engine reports hosts.
bool gorunumdeKalir(const std::optional<std::string>& istek, std::string_view uygulamaAdresi,
                    std::string_view kimlikSoneki);

// Only web and mail addresses ("http", "https", "mailto") ever leave the shell.
bool disariCikabilir(std::string_view adres);

// The decision for one navigation. An address that does not stay goes to the system only
// when it may leave the shell and the main frame asked for it; a sub-frame (or, where the
// engine does not name the frame, a navigation nobody clicked for) is cancelled instead:
// an embedded page is not a link the user followed.
GezinmeKarari gezinmeKarari(const std::optional<std::string>& istek,
                            std::string_view uygulamaAdresi, std::string_view kimlikSoneki,
                            const GezinmeKaynagi& kaynak);

}  // namespace nevo
