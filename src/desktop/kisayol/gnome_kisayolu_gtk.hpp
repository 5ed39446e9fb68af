#pragma once
#include <gio/gio.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include "desktop/kisayol/sicak_tus.hpp"

namespace nevo {

// The hot key on GNOME without X11: a custom key binding written into GNOME's own settings
// that runs `nevo` with GNOME_KISAYOL_SECENEGI; the running instance receives it as the
// application action GNOME_KISAYOL_EYLEMI and takes it for a press. The binding exists
// exactly while it is registered. GNOME would take a combination twice without a word, so
// one that its own key bindings or another custom binding hold is refused.
class GnomeKisayolu final : public SicakTus {
 public:
  // `komut` is the command line GNOME runs; the action is added to `uygulama` (if any).
  GnomeKisayolu(std::string komut, GApplication* uygulama);
  GnomeKisayolu(const GnomeKisayolu&) = delete;
  GnomeKisayolu& operator=(const GnomeKisayolu&) = delete;
  ~GnomeKisayolu() override;

  bool destekli() const override { return true; }
  void isleyiciKur(std::function<void()> basildi) override;
  void kaydet(std::uint32_t kod, std::uint32_t mod, Sonuc sonuc) override;
  void kaldir() override;

 private:
  std::string komut_;
  GApplication* uygulama_;
  std::shared_ptr<std::function<void()>> basildi_ = std::make_shared<std::function<void()>>();
  bool eylemVar_ = false;
};

inline constexpr const char* GNOME_KISAYOL_SECENEGI = "kisayol-basildi";
inline constexpr const char* GNOME_KISAYOL_EYLEMI = "kisayol-basildi";
inline constexpr const char* GNOME_KISAYOL_YOLU =
    "/org/gnome/settings-daemon/plugins/media-keys/custom-keybindings/nevo/";

// GNOME's custom key bindings, where its settings schemas are installed.
bool gnomeKisayollariVar();
// Every accelerator of GNOME's own key bindings (window manager, shell, media keys, mutter)
// whose schema is installed, each with a name of its own: "<schema>.<key>[.<index>]".
void gnomeHizlandiricilari(
    const std::function<void(const std::string& ad, const char* hizlandirici)>& islev);
// On a GNOME desktop with its custom key bindings: the binding that runs this program.
std::unique_ptr<SicakTus> gnomeKisayoluOlustur();

}  // namespace nevo
