#pragma once

namespace nevo {

// Where the web view has no print dialog of its own for the page (macOS ignores
// `window.print()`), the top page's `window.print` posts to the handler of this name, and
// the shell opens the one ⌘P opens. A page that sets its own `window.print` keeps it.
inline constexpr const char* YAZDIRMA_ISLEYICISI = "nevoYazdir";

// The replacement, run at document start in the page's world, in the top frame only.
const char* yazdirmaBetigi();

}  // namespace nevo
