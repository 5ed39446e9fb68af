"""The shell under a real Wayland compositor (weston, drawn into the test's X server): the
window opens, the modes switch its size, and nothing logs a critical. Placement is the
compositor's."""
import os

import ortam
from ortam import KabukTesti, bekle

CIKTI = (1400, 900)  # weston's output, a window on the X screen


class WaylandMasaustu(ortam.Masaustu):
    """The test desktop with weston running in it as the Wayland compositor."""

    def __init__(self):
        super().__init__()
        soket = "nevo-wayland"
        self.weston = self._baslat(["weston", "--backend=x11-backend.so", "--socket=" + soket,
                                    "--width=%d" % CIKTI[0], "--height=%d" % CIKTI[1],
                                    "--idle-time=0", "--no-config"])
        bekle(lambda: os.path.exists(os.path.join(self.ortam["XDG_RUNTIME_DIR"], soket)),
              neden="weston soketi")
        bekle(lambda: self.komut(["xdotool", "search", "--classname", "weston"],
                                 hata_yok=True).split(), neden="weston penceresi")
        self.wayland = dict(WAYLAND_DISPLAY=soket, GDK_BACKEND="wayland")


class WaylandTesti(KabukTesti):
    """A test case whose shells run under weston."""

    def masaustu_kur(self):
        return WaylandMasaustu()

    def wayland_kabuk(self, yol):
        return self.kabuk(yol, ek_ortam=self.masaustu.wayland, x_penceresi=False)


class Wayland(WaylandTesti):
    def boyut(self, en, boy):
        return self.olay(lambda o: o["tur"] == "boyut" and (o["w"], o["h"]) == (str(en), str(boy)),
                         neden="%dx%d" % (en, boy))

    def test_pencere_acilir_kipler_boyutu_degistirir(self):
        self.wayland_kabuk("/kipler.html?gez")
        o = self.olay(lambda o: o["tur"] == "yuklendi", neden="sayfa açıldı")
        self.assertEqual((o["w"], o["h"]), ("1080", "760"))
        self.boyut(880, 820)
        self.boyut(1080, 760)


if __name__ == "__main__":
    ortam.calistir()
