#pragma once
#include <string>
#include <string_view>

namespace nevo {

// An image the user pastes reaches the page as a file, as in a browser, where the engine
// gives the page nothing for a clipboard that holds only an image (a screenshot tool's
// PNG). A watcher in a script world of the shell's own, in the top frame, sees each paste
// the user makes; one that carries neither text nor files is held back from the page while
// the shell reads the clipboard's image, and then reaches the page again carrying the
// image as a file (or, with no image there, as it was). Everything else passes untouched.
inline constexpr const char* YAPISTIRMA_DUNYASI = "nevo-yapistirma";
inline constexpr const char* YAPISTIRMA_ISLEYICISI = "yapistir";
inline constexpr const char* YAPISTIRILAN_AD = "gorsel.png";

// The watcher, run at document start in the shell's world, before any script of the page.
const char* yapistirmaGozcusu();

// Whether the bytes the clipboard gave for "image/png" are a PNG: some owners answer every
// type they are asked for with whatever they hold.
bool pngMi(std::string_view baytlar);

// The held paste, now carrying the PNG whose bytes are `base64` ("" when the clipboard
// holds no image: the paste reaches the page empty, as the engine made it).
std::string gorselYapistir(const std::string& base64);

}  // namespace nevo
