#pragma once
#include <optional>
#include <string>
#include <vector>

#include "app/pencere/menu_modeli.hpp"

namespace nevo {

// What lies under the pointer where the context menu was asked for.
struct Isabet {
  bool duzenlenebilir = false;            // a text field or other editable content
  bool secim = false;                     // over selected text
  bool oneriVar = false;                  // the spell checker has suggestions for the word
  bool sayfaIstemedi = false;             // the page cancelled its contextmenu event: its own wins
  std::optional<std::string> baglanti{};  // the link's address
  std::optional<std::string> resim{};     // the image's address
};

// What a context-menu entry does.
enum class BaglamEylemi {
  Ayrac,
  YazimOnerileri,  // the engine's suggestions for the misspelled word, when it has any
  GeriAl,
  Yinele,
  Kes,
  Kopyala,
  Yapistir,
  TumunuSec,
  TarayicidaAc,  // the link, through the rule for a new window: only web and mail leave
  AdresiKopyala,
  ResmiKopyala,
  ResmiKaydet,
};

struct BaglamOgesi {
  BaglamEylemi eylem = BaglamEylemi::Ayrac;
  std::string baslik{};
  std::string tus{};              // the key with the menu's modifier, as in the menu bar
  std::string duzenlemeKomutu{};  // the web view's editing command, for Undo and Redo
};

// The context menu for `isabet`, in groups split by separators: editing (or Copy over a
// selection), the link, the image. Editing entries take their titles and keys from the
// menu bar `menu`. Empty when nothing under the pointer has a command, or when the page
// cancelled the event: no menu opens.
std::vector<BaglamOgesi> baglamMenusu(const Isabet& isabet, const std::vector<AltMenu>& menu);

}  // namespace nevo
