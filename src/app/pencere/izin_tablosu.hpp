#pragma once
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace nevo {

// What the web engine may ask the shell to allow a page.
enum class Izin {
  Mikrofon,
  Kamera,
  EkranPaylasimi,
  AygitAdlari,    // the names of the microphones and cameras, before any is in use
  Konum,          // the position of the machine
  FareKilidi,     // the pointer held by the page
  WebBildirimi,   // notifications through the web's own notification interface
  PanoOkuma,      // the clipboard read by a script
  KorumaliMedya,  // a key system for encrypted media
  SiteVerisi,     // an embedded site's access to its own cookies
  Diger,          // anything else the engine asks (installing media plugins, …)
};

// Who is given it.
enum class IzinSahibi {
  UygulamaninUstSayfasi,  // the application's own top page: its host is the application's
  Hicbiri,
};

// One row of the table: the permission, its name in `navigator.permissions.query` (none:
// the page cannot ask for its state), who is given it and why.
struct IzinSatiri {
  Izin izin;
  const char* sorguAdi;
  IzinSahibi sahibi;
  const char* neden;
};

// The one table: every permission the shell decides, each with its reason.
std::span<const IzinSatiri> izinTablosu();

// Where a request comes from, as far as the web view tells.
struct IzinKaynagi {
  std::optional<std::string> sayfaAdresi;  // the view's current (top) address
  bool ustSayfa = false;                   // asked by the top document, not a sub-frame
  std::optional<std::string> host;         // the asking document's host, where it is named
};

// True when the table gives `izin` to `kaynak`. The application's own top page is the top
// document of a view showing the application's host (hosts compared without regard to
// case, as the bridge compares them); a sub-frame, or any other page, is refused.
bool izinVerilir(Izin izin, const IzinKaynagi& kaynak, std::string_view uygulamaAdresi);

enum class IzinDurumu { Verildi, Reddedildi };

// What `navigator.permissions.query` tells a page for the permission named `ad`: what the
// table would decide for it. None for a name the table does not hold.
std::optional<IzinDurumu> sorguDurumu(std::string_view ad, const IzinKaynagi& kaynak,
                                      std::string_view uygulamaAdresi);

}  // namespace nevo
