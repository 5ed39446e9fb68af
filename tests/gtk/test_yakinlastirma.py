"""Zoom on Linux: Ctrl with +, = or the keypad's plus zooms in, with minus out, with 0 back to
the page's own size, and so does Ctrl with the wheel, on a Turkish keyboard too; the zoom is
kept across restarts, and a page that handles the key itself keeps it."""
import os

import ortam
from ortam import KabukTesti, bekle


class Yakinlastirma(KabukTesti):
    def setUp(self):
        super().setUp()
        # "+" is Shift with 4 on the Turkish keyboard; see test_kisayol.py for why a changed
        # layout runs without the leak check.
        self.masaustu.ortam["ASAN_OPTIONS"] += ":detect_leaks=0"
        self.masaustu.komut(["setxkbmap", "tr"])

    def genislik(self, k):
        """The page's width in its own pixels, reported for a key press: by then the page has
        had every earlier key."""
        onceki = len(self.olaylar())
        k.tus("a")
        bekle(lambda: len(self.olaylar()) > onceki, neden="tuş a")
        return int(self.olaylar()[-1]["genislik"])

    def olaylar(self):
        return [o for o in list(self.sunucu.olaylar) if o["tur"] == "tus" and o["tus"] == "a"]

    def yakinlik(self, k, dogal):
        return round(dogal / self.genislik(k), 2)

    def tercih(self):
        with open(os.path.join(self.masaustu.ortam["XDG_CONFIG_HOME"], "nevo",
                               "tercihler.ini")) as f:
            return [s.strip() for s in f if s.startswith("nevo.yakinlastirma")]

    def test_tuslar_ve_teker_yakinlastirir_yakinlik_kalir(self):
        k = self.kabuk("/yazi_alani.html")
        dogal = int(self.olay(lambda o: o["tur"] == "yuklendi", neden="yüklendi")["genislik"])
        k.sayfa_gorunur()
        self.assertEqual(self.yakinlik(k, dogal), 1.0)
        for tus, beklenen in (("ctrl+plus", 1.1), ("ctrl+KP_Add", 1.25), ("ctrl+equal", 1.5),
                              ("ctrl+minus", 1.25), ("ctrl+KP_Subtract", 1.1), ("ctrl+0", 1.0)):
            k.tus(tus)
            self.assertAlmostEqual(self.yakinlik(k, dogal), beklenen, delta=0.02, msg=tus)
        gx, gy, _, _ = k.geometri()
        self.masaustu.xdotool("mousemove", "--sync", gx + 400, gy + 600)
        self.masaustu.xdotool("keydown", "ctrl", "click", 4, "click", 4, "keyup", "ctrl")
        self.assertAlmostEqual(self.yakinlik(k, dogal), 1.25, delta=0.02, msg="teker")
        k.bitir()
        self.assertEqual(self.tercih(), ["nevo.yakinlastirma=125"])

        # Back at the same zoom; the page that keeps Ctrl with "+" for itself is not zoomed.
        self.sunucu.olaylar.clear()
        k = self.kabuk("/yazi_alani.html?kendi=%2B")
        genislik = int(self.olay(lambda o: o["tur"] == "yuklendi", neden="yüklendi")["genislik"])
        self.assertAlmostEqual(dogal / genislik, 1.25, delta=0.02)
        k.sayfa_gorunur()
        k.tus("ctrl+plus")
        self.assertEqual(self.olay(lambda o: o["tur"] == "tus" and o["tus"] == "+",
                                   neden="Ctrl++ sayfada")["tuttu"], "true")
        self.assertAlmostEqual(self.yakinlik(k, dogal), 1.25, delta=0.02)


if __name__ == "__main__":
    ortam.calistir()
