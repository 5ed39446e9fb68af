"""The title strip on Linux: it moves the window; double-clicks follow the desktop."""
import time

import ortam
from ortam import KabukTesti, bekle

SERIT = (440, 14)
TAM_EKRAN = (0, 0) + ortam.EKRAN  # openbox's work area with no panels
GIRIS_ORTADA = (360, 90, 880, 820)


class Seritle(KabukTesti):
    def acik_kabuk(self):
        k = self.kabuk("/")
        k.sayfa_gorunur()
        bekle(lambda: k.geometri() == GIRIS_ORTADA, neden="ortada")
        return k

    def test_bas_surukle_pencereyi_tasir_sayfa_basisi_almaz(self):
        k = self.acik_kabuk()
        x, y, _, _ = k.geometri()
        m = self.masaustu
        m.xdotool("mousemove", x + SERIT[0], y + SERIT[1])
        m.xdotool("mousedown", 1)
        for adim in range(1, 11):
            m.xdotool("mousemove", x + SERIT[0] + 12 * adim, y + SERIT[1] + 7 * adim)
            time.sleep(0.03)
        m.xdotool("mouseup", 1)
        bekle(lambda: k.geometri()[:2] == (x + 120, y + 70), neden="120, 70 taşındı")
        k.tikla(440, 700)  # a press on the page itself does reach it
        self.olay(lambda o: o["tur"] == "fare")
        self.assertEqual([o for o in self.sunucu.olaylar if o["tur"] == "fare"
                          and int(o["y"]) < 28], [])

    def test_surukleme_basista_baslar_kucuk_kayma_da_tasir(self):
        k = self.acik_kabuk()
        x, y, _, _ = k.geometri()
        m = self.masaustu
        m.xdotool("mousemove", x + SERIT[0], y + SERIT[1])
        m.xdotool("mousedown", 1)
        m.xdotool("mousemove", x + SERIT[0] + 3, y + SERIT[1] + 2)
        m.xdotool("mouseup", 1)
        bekle(lambda: k.geometri()[:2] == (x + 3, y + 2), neden="3, 2 taşındı")

    def test_cift_tiklama_calisma_alanini_doldurur_ikincisi_tam_geri_getirir(self):
        k = self.acik_kabuk()
        self.masaustu.xdotool("windowmove", "--sync", k.pencere, 123, 45)
        bekle(lambda: k.geometri() == (123, 45, 880, 820), neden="taşındı")
        k.tikla(*SERIT, tekrar=2)
        bekle(lambda: k.geometri() == TAM_EKRAN, neden="büyüdü")
        time.sleep(0.5)  # the next two presses are a double click of their own
        k.tikla(*SERIT, tekrar=2)
        bekle(lambda: k.geometri() == (123, 45, 880, 820), neden="tam önceki çerçeve")

    def test_uclu_tiklama_surukler_yeniden_buyutmez(self):
        k = self.acik_kabuk()
        k.tikla(*SERIT, tekrar=3)  # the second press zooms, the third is a drag
        bekle(lambda: k.geometri() == TAM_EKRAN, neden="büyüdü")
        self.fare_turu(k)  # the third press has been handled
        self.assertEqual(k.geometri(), TAM_EKRAN)


class TercihTesti(KabukTesti):
    def cift_tikla(self):
        k = self.kabuk("/")
        k.sayfa_gorunur()
        once = k.geometri()
        k.tikla(*SERIT, tekrar=2)
        return k, once


class KucultTercihi(TercihTesti):
    gtk_ayarlari = {"gtk-titlebar-double-click": "minimize"}

    def test_cift_tiklama_kucultur(self):
        k, _ = self.cift_tikla()
        bekle(lambda: "Iconic" in k.durum(), neden="simge durumunda")


class HicbiriTercihi(TercihTesti):
    gtk_ayarlari = {"gtk-titlebar-double-click": "none"}

    def test_cift_tiklama_hicbir_sey_yapmaz(self):
        k, once = self.cift_tikla()
        self.fare_turu(k)  # the double click has been handled
        self.assertEqual(k.geometri(), once)
        self.assertNotIn("Iconic", k.durum())


class BaskaTercih(TercihTesti):
    gtk_ayarlari = {"gtk-titlebar-double-click": "lower"}

    def test_bilinmeyen_deger_yokmus_gibi_buyutur(self):
        k, _ = self.cift_tikla()
        bekle(lambda: k.geometri() == TAM_EKRAN, neden="büyüdü")


if __name__ == "__main__":
    ortam.calistir()
