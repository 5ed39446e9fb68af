#pragma once

namespace nevo {

// Spelling's dictionaries are loaded only once the user is about to write: the first time a
// field that takes text gets the focus (a text input, a text area, an editable element),
// the top page posts to the handler of this name, once. It runs in a script world of its
// own, so the page neither sees nor stops it.
inline constexpr const char* DUZENLEME_ODAGI_ISLEYICISI = "duzenlemeOdagi";

const char* duzenlemeOdagiBetigi();

}  // namespace nevo
