#import "app/pencere/pencere_mac.hpp"

#include <set>
#include <string_view>

#include "app/pencere/baglam_menusu.hpp"
#include "temel/metin_mac.hpp"

namespace nevo::mac {
namespace {

// WebKit names the entries of its menu by these identifiers (the values of its own
// constants, which its public headers do not declare). Spelling and the editing entries are
// the system's own and stay.
bool gider(std::string_view kimlik) {
  static const std::set<std::string_view> GIDENLER = {"OpenLink",
                                                      "DownloadLinkedFile",
                                                      "OpenImageInNewWindow",
                                                      "DownloadImage",
                                                      "OpenFrameInNewWindow",
                                                      "OpenMediaInNewWindow",
                                                      "DownloadMedia",
                                                      "CopyMediaLink",
                                                      "ShowHideMediaControls",
                                                      "ToggleFullScreen",
                                                      "ToggleEnhancedFullScreen",
                                                      "SpeechMenu",
                                                      "ShareMenu",
                                                      "LookUp",
                                                      "Translate",
                                                      "SearchWeb",
                                                      "Reload",
                                                      "GoBack",
                                                      "GoForward",
                                                      "InspectElement"};
  return GIDENLER.count(kimlik) > 0;
}

// The engine's entries that stay under the core's titles. Opening the link in a new window
// reaches the shell as a request for a new window, which only lets web and mail addresses
// leave, for the browser.
std::optional<BaglamEylemi> kalanEylem(std::string_view kimlik) {
  if (kimlik == "OpenLinkInNewWindow") return BaglamEylemi::TarayicidaAc;
  if (kimlik == "CopyLink") return BaglamEylemi::AdresiKopyala;
  if (kimlik == "CopyImage") return BaglamEylemi::ResmiKopyala;
  return std::nullopt;
}

// No separator first, last or beside another.
void ayraclariToparla(NSMenu* menu) {
  bool oncekiAyrac = true;  // the top of the menu counts as one
  for (NSInteger i = 0; i < menu.numberOfItems;) {
    const bool ayrac = [menu itemAtIndex:i].separatorItem;
    if (ayrac && oncekiAyrac) {
      [menu removeItemAtIndex:i];
    } else {
      oncekiAyrac = ayrac;
      ++i;
    }
  }
  const NSInteger son = menu.numberOfItems - 1;
  if (son >= 0 && [menu itemAtIndex:son].separatorItem) [menu removeItemAtIndex:son];
}

}  // namespace

void baglamMenusunuBudar(NSMenu* menu) {
  constexpr std::string_view ONEK = "WKMenuItemIdentifier";
  for (NSInteger i = menu.numberOfItems - 1; i >= 0; --i) {
    NSMenuItem* oge = [menu itemAtIndex:i];
    const std::string tam = stdMetin(oge.identifier);
    if (tam.rfind(ONEK, 0) != 0) continue;
    const std::string_view kimlik = std::string_view(tam).substr(ONEK.size());
    if (gider(kimlik)) {
      [menu removeItemAtIndex:i];
    } else if (const auto eylem = kalanEylem(kimlik)) {
      oge.title = nsMetin(baglamBasligi(*eylem));
    }
  }
  ayraclariToparla(menu);
  if (menu.numberOfItems == 0) [menu cancelTrackingWithoutAnimation];
}

}  // namespace nevo::mac
