#pragma once
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "app/indirme/indirme.hpp"
#include "app/pencere/baglam_menusu.hpp"
#include "app/pencere/dugme_duzeni.hpp"
#include "app/pencere/gezinme.hpp"
#include "bridge/sayfa.hpp"

namespace nevo {

// What the platform's window, web view and strip report to the application delegate.
class PencereOlaylari {
 public:
  virtual ~PencereOlaylari() = default;
  virtual void adresDegisti() = 0;  // the web view's URL changed
  virtual void sayfaIslendi() = 0;  // didCommit
  virtual void yuklemeBitti() = 0;  // didFinish
  virtual void yuklemeBasarisiz(std::optional<std::string> adres) = 0;  // didFail…
  // A load that ended because its navigation was cancelled while under way (the engine's
  // "frame load interrupted by policy change": a redirect the shell did not let in, or a
  // response turned into a download).
  virtual void yuklemeKesildi() = 0;
  virtual bool gezinmeIzni(const std::optional<std::string>& adres,  // allow / cancel
                           const GezinmeKaynagi& kaynak) = 0;
  virtual void yeniPencereIstendi(const std::optional<std::string>& adres) = 0;
  // The web process ended (crashed, was killed or was ended by the shell).
  virtual void webSureciBitti() = 0;
  // The engine reports the web process unresponsive (true) or responsive again (false).
  virtual void yanitVermiyor(bool evet) = 0;
  // Whether a key press goes to the page before the menu's key equivalents.
  virtual bool tusOnceSayfaya() const = 0;
  virtual bool seritBasildi(int tiklamaSayisi) = 0;  // true: start a window drag
  // One of the strip's window buttons was pressed; the menu button opens the menu itself.
  virtual void pencereDugmesi(Dugme dugme) = 0;
  // Where the engine's downloads report; they outlive nothing they report to.
  virtual std::weak_ptr<IndirmeOlaylari> indirmeler() = 0;
  // The context menu for what lies under the pointer; empty: no menu opens.
  virtual std::vector<BaglamOgesi> baglamMenusu(const Isabet& isabet) const = 0;
  // A command of `tusKomutlari` whose key the page left alone (or the wheel's zoom).
  virtual void tusKomutu(const std::string& eylem) = 0;
  // A message posted to the handler "nevo", its body as JSON text.
  virtual void userContentController(std::string_view govde, const MesajKaynagi& kaynak) = 0;
  // The page called `window.print()`, where the web view leaves it to the shell.
  virtual void yazdirmaIstendi(const MesajKaynagi& kaynak) = 0;
};

}  // namespace nevo
