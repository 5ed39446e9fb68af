#pragma once
#include <string>
#include <vector>

namespace nevo {

// Part 1.6: one entry of a submenu. An empty `eylem` is a separator. `tus` is the key
// equivalent with the platform's menu modifier; an upper-case key adds Shift.
struct MenuOgesi {
  std::string baslik;
  std::string eylem;
  std::string tus;
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

std::vector<AltMenu> anaMenu();

bool ayracMi(const MenuOgesi& oge);
bool shiftEkler(const MenuOgesi& oge);

// Builds the menu bar from the model and installs it (the platform's menu services).
class MenuKurucu {
 public:
  virtual ~MenuKurucu() = default;
  virtual void kur(const std::vector<AltMenu>& menu) = 0;
};

}  // namespace nevo
