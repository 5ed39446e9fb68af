#pragma once
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "app/platform_metinleri.hpp"

namespace nevo {

// One entry of a submenu: everything each platform needs to show it and carry it out.
// An empty `eylem` is a separator.
struct MenuOgesi {
  std::string baslik;
  std::string eylem;  // the action identifier (namespace eylem)
  // The key equivalent with the platform's menu modifier; an upper-case key adds Shift.
  std::string tus;
  // The macOS action selector, sent without a target along the responder chain.
  std::string secici{};
  // The web view's editing command this entry runs; empty when it is no editing command.
  std::string duzenlemeKomutu{};
  bool etkin = true;  // shown enabled
};

struct AltMenu {
  std::string baslik;  // "" for the application menu: the platform shows the app's name
  std::vector<MenuOgesi> ogeler;
  bool pencereMenusu = false;  // registered as the application's windows menu
};

// Action identifiers the platform layer carries out.
namespace eylem {
inline constexpr const char* HAKKINDA = "hakkinda";
inline constexpr const char* GIZLE = "gizle";
inline constexpr const char* DIGERLERINI_GIZLE = "digerlerini-gizle";
inline constexpr const char* CIK = "cik";
inline constexpr const char* GERI_AL = "geri-al";
inline constexpr const char* YINELE = "yinele";
inline constexpr const char* KES = "kes";
inline constexpr const char* KOPYALA = "kopyala";
inline constexpr const char* YAPISTIR = "yapistir";
inline constexpr const char* TUMUNU_SEC = "tumunu-sec";
inline constexpr const char* YENIDEN_YUKLE = "yeniden-yukle";
inline constexpr const char* TAM_EKRAN = "tam-ekran";
inline constexpr const char* KUCULT = "kucult";
inline constexpr const char* KAPAT = "kapat";
}  // namespace eylem

// The menu bar on the platform whose words `metinler` are.
std::vector<AltMenu> anaMenu(const PlatformMetinleri& metinler);

bool ayracMi(const MenuOgesi& oge);
bool shiftEkler(const MenuOgesi& oge);
bool shiftEkler(std::string_view tus);  // a key equivalent as `MenuOgesi::tus` writes it

// The entry of `menu` with the action `eylem`, or the one that runs the editing command
// `komut`; null when there is none. The pointer lives as long as `menu`.
const MenuOgesi* eylemOgesi(const std::vector<AltMenu>& menu, std::string_view eylem);
const MenuOgesi* duzenlemeOgesi(const std::vector<AltMenu>& menu, std::string_view komut);

// Builds the menu bar from the model and installs it (the platform's menu services).
class MenuKurucu {
 public:
  virtual ~MenuKurucu() = default;
  virtual void kur(const std::vector<AltMenu>& menu) = 0;
};

// The platform's menu builder; `secildi` gets the action of each chosen entry.
std::unique_ptr<MenuKurucu> menuKurucuOlustur(std::function<void(const std::string&)> secildi);

}  // namespace nevo
