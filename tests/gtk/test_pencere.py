"""The main window on Linux: window modes, the style sheet, a bad address."""
import os

import ortam
from ortam import KabukTesti, bekle

# Centres of the fixture's buttons, in page coordinates.
ANAYA, GIRISE, BASKA = (210, 225), (210, 325), (510, 325)
GIRIS_ORTADA = (360, 90, 880, 820)   # centred in the 1600 x 1000 work area
ANA_ORTADA = (260, 120, 1080, 760)


class PencereKipi(KabukTesti):
    def test_giris_kipinde_acilir_sabit_boyut_ortada(self):
        k = self.kabuk("/")
        self.olay(lambda o: o["tur"] == "yuklendi")
        bekle(lambda: k.geometri() == GIRIS_ORTADA, neden="880x820 ortada")
        self.assertFalse(k.boyutlanabilir())

    def test_ekrandaki_pencere_uygulamanin_simgesini_tasir(self):
        k = self.kabuk("/")
        # The property's first two numbers: the width and the height of its first image.
        simge = lambda: self.masaustu.komut(["xprop", "-id", k.pencere, "-f", "_NET_WM_ICON",
                                             "32c", " = $0 x $1\n", "_NET_WM_ICON"])
        bekle(lambda: "= 256 x 256" in simge(), neden="pencerenin 256 piksellik simgesi")

    def test_ana_yola_gidince_ana_kip_geri_gelince_giris_kipi(self):
        k = self.kabuk("/")
        k.sayfa_gorunur()
        k.tikla(*ANAYA)  # history.pushState("/home")
        self.olay(lambda o: o["tur"] == "gitti" and o["yol"] == "/home")
        bekle(lambda: k.geometri() == ANA_ORTADA, neden="1080x760 ortada")
        self.assertTrue(k.boyutlanabilir())
        k.tikla(*GIRISE)
        self.olay(lambda o: o["tur"] == "gitti" and o["yol"] == "/")
        bekle(lambda: k.geometri() == GIRIS_ORTADA, neden="giriş kipine dönüş")
        self.assertFalse(k.boyutlanabilir())

    def test_ana_kipte_yeni_adres_pencereyi_oynatmaz(self):
        k = self.kabuk("/home")
        self.olay(lambda o: o["tur"] == "yuklendi")
        bekle(lambda: k.geometri() == ANA_ORTADA, neden="ana kip")
        k.sayfa_gorunur()
        self.masaustu.xdotool("windowmove", "--sync", k.pencere, 50, 60)
        self.masaustu.xdotool("windowsize", "--sync", k.pencere, 1000, 700)
        bekle(lambda: k.geometri() == (50, 60, 1000, 700), neden="kullanıcının çerçevesi")
        k.tikla(*BASKA)
        self.olay(lambda o: o["tur"] == "gitti" and o["yol"] == "/home/ikinci")
        # Full screen and back, a later request of the shell to the window manager, returns
        # the frame the window had then: the user's, unless the new address moved it.
        k.tus("ctrl+f")
        bekle(lambda: "FULLSCREEN" in k.durum(), neden="tam ekran")
        k.tus("ctrl+f")
        bekle(lambda: "FULLSCREEN" not in k.durum(), neden="tam ekrandan çıkış")
        bekle(lambda: k.geometri() == (50, 60, 1000, 700), neden="kullanıcının çerçevesi kaldı")


    def test_tam_ekranda_serit_ve_dugmeler_gider_sayfa_ust_kenarda_basilir(self):
        k = self.kabuk("/home")
        self.olay(lambda o: o["tur"] == "yuklendi")
        bekle(lambda: k.geometri() == ANA_ORTADA, neden="ana kip")
        k.sayfa_gorunur()
        k.tus("ctrl+f")
        bekle(lambda: "FULLSCREEN" in k.durum(), neden="tam ekran")
        en, boy = ortam.EKRAN
        bekle(lambda: k.geometri()[2:] == (en, boy), neden="ekranı kaplar")
        # Where the band and the window buttons were, the page takes the press.
        for x, y in ((12, 10), (en // 2, 10), (en - 12, 10), (en - 60, 20)):
            self.sunucu.olaylar.clear()
            k.tikla(x, y)
            o = self.olay(lambda o: o["tur"] == "fare", neden="sayfaya basış %d,%d" % (x, y))
            self.assertEqual((o["x"], o["y"]), (str(x), str(y)))
        k.tus("ctrl+f")
        bekle(lambda: "FULLSCREEN" not in k.durum(), neden="tam ekrandan çıkış")
        bekle(lambda: k.geometri() == ANA_ORTADA, neden="eski çerçeve")
        # The band is back: a press in it reaches the page no more. The press below it comes
        # later, so its beacon proves the first would have arrived by then.
        self.sunucu.olaylar.clear()
        k.tikla(540, 10)
        k.tikla(540, 700)
        o = self.olay(lambda o: o["tur"] == "fare", neden="şeridin altındaki basış")
        self.assertEqual((o["x"], o["y"]), ("540", "700"))


class StilSayfasi(KabukTesti):
    def test_dar_kural_900de_etkin_901de_degil(self):
        k = self.kabuk("/home")
        self.olay(lambda o: o["tur"] == "yuklendi")
        bekle(lambda: k.boyutlanabilir(), neden="ana kip")
        for en, ust in ((900, "40px"), (901, "0px"), (900, "40px")):
            self.sunucu.olaylar.clear()
            self.masaustu.xdotool("windowsize", k.pencere, en, 700)
            o = self.olay(lambda o: o["tur"] == "boyut" and o["w"] == str(en), neden=str(en))
            self.assertEqual(o["ust"], ust, en)
            self.assertEqual(o["kenar"], "40px", en)  # the sidebar rule always holds

    def test_stil_sayfanin_ilk_betiginden_once_var(self):
        self.kabuk("/")
        o = self.olay(lambda o: o["tur"] == "yuklendi")
        self.assertEqual(o["ilk"], "true")
        self.assertNotEqual(o["stil"], "yok")

    def test_basi_olmayan_belgede_belge_kokune_eklenir(self):
        self.kabuk("/gecbas.xhtml")
        o = self.olay(lambda o: o["tur"] == "gecbas")
        self.assertEqual(o, {"tur": "gecbas", "stil": "html", "bas": "yok"})


class Adres(KabukTesti):
    def _calistir(self, adres):
        """A shell given `adres`, which refuses it: it ends at once with status 1."""
        # It has started its agent by then and leaves it running.
        self.masaustu.komutu_birak(os.path.join("share", "nevo", "ajan", "ajan.mjs"))
        return ortam.calistir_ve_denetle(self.masaustu, [ortam.NEVO], {"NEVO_ADRES": adres},
                                         beklenen=1)

    def test_cozulemeyen_adres_sureci_tek_satirla_durdurur(self):
        r = self._calistir("ht tp://bozuk adres")
        satirlar = [s for s in r.stderr.splitlines() if s.startswith("nevo:")]
        self.assertEqual(satirlar, ['nevo: NEVO_ADRES bir adres olarak çözülemedi: '
                                    '"ht tp://bozuk adres"'])

    def test_bos_nevo_adres_bos_adrestir_ve_cozulemez(self):
        r = self._calistir("")
        self.assertIn('nevo: NEVO_ADRES bir adres olarak çözülemedi: ""', r.stderr)

    def test_web_olmayan_adres_sureci_tek_satirla_durdurur(self):
        for adres in ("file:///etc/passwd", "nevo://baglan", "mailto:a@b.c", "https:yol"):
            r = self._calistir(adres)
            satirlar = [s for s in r.stderr.splitlines() if s.startswith("nevo:")]
            self.assertEqual(satirlar, ['nevo: NEVO_ADRES bir web adresi değil: "%s"' % adres])


if __name__ == "__main__":
    ortam.calistir()
