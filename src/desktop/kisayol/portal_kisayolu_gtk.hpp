#pragma once
#include <gio/gio.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "desktop/kisayol/sicak_tus.hpp"
#include "temel/glib_gtk.hpp"

namespace nevo {

// The hot key through the desktop portal's global shortcuts: one session holding one
// shortcut. Every call to the portal is asynchronous, so a portal that never answers holds
// nothing up: the verdict of `kaydet` comes with the portal's answer to the binding (bound
// when the shortcuts it carries hold ours with a trigger), and presses count from then on.
// A refused binding, or a session the portal does not open, is the verdict "refused".
class SicakTusPortal final : public SicakTus {
 public:
  explicit SicakTusPortal(GDBusConnection* baglanti);
  SicakTusPortal(const SicakTusPortal&) = delete;
  SicakTusPortal& operator=(const SicakTusPortal&) = delete;
  ~SicakTusPortal() override;

  bool destekli() const override { return true; }
  void isleyiciKur(std::function<void()> basildi) override;
  void kaydet(std::uint32_t kod, std::uint32_t mod, Sonuc sonuc) override;
  void kaldir() override;

  struct Oturum;

 private:
  GNesne<GDBusConnection> baglanti_;
  std::shared_ptr<std::function<void()>> basildi_ = std::make_shared<std::function<void()>>();
  std::shared_ptr<Oturum> oturum_;
  // Released sessions whose handle the portal still owes: closed when it arrives.
  std::vector<std::shared_ptr<Oturum>> bekleyenler_;
  unsigned sayac_ = 0;
};

inline constexpr const char* PORTAL_KISAYOL_KIMLIGI = "hizli-giris";

// A key code with a modifier mask in the portal's trigger syntax ("CTRL+ALT+k"); none for a
// key the shared codes do not name.
std::optional<std::string> portalTetigi(std::uint32_t kod, std::uint32_t mod);
// The portal answers for its global shortcuts on `baglanti` within `sinirMs` milliseconds.
bool portalKisayollariVar(GDBusConnection* baglanti, int sinirMs);
// The portal's global shortcuts on the session bus, when it offers them.
std::unique_ptr<SicakTus> portalKisayoluOlustur();

}  // namespace nevo
