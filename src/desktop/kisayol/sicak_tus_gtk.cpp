#include "desktop/kisayol/sicak_tus_gtk.hpp"

#include <X11/Xlib.h>
#include <gdk/gdkx.h>

#include <array>
#include <utility>

#include "desktop/kisayol/gnome_kisayolu_gtk.hpp"
#include "desktop/kisayol/portal_kisayolu_gtk.hpp"
#include "desktop/kisayol/tus_cevirisi_gtk.hpp"

namespace nevo {
namespace {

// The lock keys change nothing about the combination: each is grabbed with and without.
constexpr std::array<unsigned, 4> KILITLER{0, LockMask, Mod2Mask, LockMask | Mod2Mask};
// The modifiers a hot key's mask can name.
constexpr unsigned ADLI_DURUMLAR = ControlMask | Mod1Mask | ShiftMask | Mod4Mask;

unsigned xDurumu(std::uint32_t mod) {
  unsigned durum = 0;
  const auto gdk = gdkDurumu(mod);
  if (gdk & GDK_CONTROL_MASK) durum |= ControlMask;
  if (gdk & GDK_MOD1_MASK) durum |= Mod1Mask;
  if (gdk & GDK_SHIFT_MASK) durum |= ShiftMask;
  if (gdk & GDK_SUPER_MASK) durum |= Mod4Mask;
  return durum;
}

}  // namespace

SicakTusX11::~SicakTusX11() {
  kaldir();
  if (suzgecVar_) gdk_window_remove_filter(nullptr, &SicakTusX11::suz, this);
}

void SicakTusX11::isleyiciKur(std::function<void()> basildi) {
  basildi_ = std::move(basildi);
  if (!std::exchange(suzgecVar_, true)) gdk_window_add_filter(nullptr, &SicakTusX11::suz, this);
}

// Runs on the main loop as GDK reads the event; it only hands the press on.
GdkFilterReturn SicakTusX11::suz(GdkXEvent* xolay, GdkEvent*, gpointer veri) {
  auto* kendisi = static_cast<SicakTusX11*>(veri);
  const auto* olay = static_cast<XEvent*>(xolay);
  if (olay->type != KeyPress || !kendisi->kayit_) return GDK_FILTER_CONTINUE;
  const auto& kayit = *kendisi->kayit_;
  // Only the modifiers a combination can name count: the locks, the layout group and the
  // mouse buttons in the state change nothing about it.
  const unsigned durum = olay->xkey.state & ADLI_DURUMLAR;
  if (olay->xkey.keycode != kayit.tusKodu || durum != kayit.durum) return GDK_FILTER_CONTINUE;
  if (kendisi->basildi_) kendisi->basildi_();
  return GDK_FILTER_REMOVE;
}

void SicakTusX11::kaydet(std::uint32_t kod, std::uint32_t mod, Sonuc sonuc) {
  kaldir();
  sonuc(tak(kod, mod));
}

bool SicakTusX11::tak(std::uint32_t kod, std::uint32_t mod) {
  // The key is grabbed by its place, so it is the same key in every layout group.
  const auto tusKodu = donanimKodu(kod);
  if (!tusKodu) return false;
  kayit_ = Kayit{*tusKodu, xDurumu(mod)};
  gdk_x11_display_error_trap_push(ekran_);
  tut(true);
  // Another client holding the combination answers BadAccess.
  if (gdk_x11_display_error_trap_pop(ekran_) != 0) {
    gdk_x11_display_error_trap_push(ekran_);
    tut(false);
    gdk_x11_display_error_trap_pop_ignored(ekran_);
    kayit_.reset();
    return false;
  }
  return true;
}

void SicakTusX11::kaldir() {
  if (!kayit_) return;
  gdk_x11_display_error_trap_push(ekran_);
  tut(false);
  gdk_x11_display_error_trap_pop_ignored(ekran_);
  kayit_.reset();
}

void SicakTusX11::tut(bool tut) {
  Display* x = GDK_DISPLAY_XDISPLAY(ekran_);
  const Window kok = DefaultRootWindow(x);
  for (const unsigned kilit : KILITLER) {
    if (tut) {
      XGrabKey(x, static_cast<int>(kayit_->tusKodu), kayit_->durum | kilit, kok, False,
               GrabModeAsync, GrabModeAsync);
    } else {
      XUngrabKey(x, static_cast<int>(kayit_->tusKodu), kayit_->durum | kilit, kok);
    }
  }
  XSync(x, False);
}

// X11 grabs the key itself; without X11 the desktop portal binds it where it offers global
// shortcuts, else on GNOME the desktop runs `nevo` for it; elsewhere there is no hot key.
std::unique_ptr<SicakTus> sicakTusOlustur() {
  GdkDisplay* ekran = gdk_display_get_default();
  if (ekran != nullptr && GDK_IS_X11_DISPLAY(ekran)) return std::make_unique<SicakTusX11>(ekran);
  if (auto portal = portalKisayoluOlustur()) return portal;
  if (auto gnome = gnomeKisayoluOlustur()) return gnome;
  return std::make_unique<SicakTusYok>();
}

}  // namespace nevo
