"""File save on Linux: the page's text reaches the file the user chose in a real save
dialog, written as UTF-8 without a byte order mark; cancel writes nothing; an existing
file is replaced only after the dialog's confirmation."""
import os
import time

import ortam
from ortam import KopruTesti, bekle

ICERIK = 'Şule ığdır 🙂\n{"a": "b"}\r\n\'son\' \\ '


class Dosya(KopruTesti):
    def setUp(self):
        super().setUp()
        # No leak check here: GTK's file chooser leaves strings of its own asynchronous
        # file-system callbacks behind, now and then, and GTK (built without symbols here)
        # could only be suppressed whole, which would hide the shell's leaks everywhere.
        self.masaustu.ortam["ASAN_OPTIONS"] += ":detect_leaks=0"
        self.klasor = os.path.join(self.masaustu.ev, "belgeler")
        os.makedirs(self.klasor)

    def kaydet_penceresi(self):
        cikti = self.masaustu.komut(["xdotool", "search", "--onlyvisible", "--name",
                                     "^Kaydet$"], hata_yok=True).split()
        return cikti[0] if cikti else None

    def pano(self):
        return bekle(self.kaydet_penceresi, neden="kaydet penceresi")

    def pano_kapandi(self):
        return self.kaydet_penceresi() is None

    def yaz(self, pano, *tuslar, metin=None):
        self.masaustu.xdotool("windowactivate", "--sync", pano)
        time.sleep(0.3)
        if metin is not None:
            self.masaustu.xdotool("key", "--clearmodifiers", "ctrl+a")
            self.masaustu.xdotool("type", "--delay", 20, metin)
            time.sleep(0.3)
        for tus in tuslar:
            self.masaustu.xdotool("key", "--clearmodifiers", tus)
            time.sleep(0.3)

    def test_secilen_dosyaya_bomsuz_utf8_yazar(self):
        self.kopru()
        self.gonder({"tur": "dosya-kaydet", "ad": "rapor", "icerik": ICERIK})
        pano = self.pano()
        hedef = os.path.join(self.klasor, "rapor")
        self.yaz(pano, "Return", metin=hedef)
        bekle(lambda: os.path.exists(hedef), neden="dosya yazıldı")
        with open(hedef, "rb") as f:
            self.assertEqual(f.read(), ICERIK.encode("utf-8"))
        self.assertEqual(os.listdir(self.klasor), ["rapor"])

    def onerilen_adla_kaydet(self, govde, ad):
        """Keeps the dialog's suggested name and only puts the folder in front of it."""
        self.gonder(dict(govde, tur="dosya-kaydet", icerik=""))
        pano = self.pano()
        self.yaz(pano, "Home")
        self.masaustu.xdotool("type", "--delay", 20, self.klasor + "/")
        time.sleep(0.3)
        self.yaz(pano, "Return")
        hedef = os.path.join(self.klasor, ad)
        bekle(lambda: os.path.exists(hedef), neden=ad + " yazıldı")
        self.assertEqual(os.path.getsize(hedef), 0)

    def test_onerilen_ad_aynen_gelir_uzanti_eklenmez(self):
        self.kopru()
        self.onerilen_adla_kaydet({"ad": "rapor"}, "rapor")
        bekle(self.pano_kapandi, neden="kapandı")
        self.onerilen_adla_kaydet({}, "nevo.json")
        self.assertEqual(sorted(os.listdir(self.klasor)), ["nevo.json", "rapor"])

    def kaydet_pencereleri(self):
        return self.masaustu.komut(["xdotool", "search", "--onlyvisible", "--name", "^Kaydet$"],
                                   hata_yok=True).split()

    def test_acik_pencere_varken_gelen_istekler_dusurulur(self):
        self.kopru()
        for i in range(25):
            self.gonder({"tur": "dosya-kaydet", "ad": "yigin-%d" % i,
                         "icerik": str(i) * (256 * 1024)})
        self.kopru_turu(1)  # every request before it has been handled
        pano = self.pano()
        # The window manager maps windows in the order they ask: once it has handled a later
        # request of the test's, any other dialog would show.
        self.masaustu.xdotool("windowactivate", "--sync", pano)
        self.assertEqual(len(self.kaydet_pencereleri()), 1)
        hedef = os.path.join(self.klasor, "ilk")
        self.yaz(pano, "Return", metin=hedef)
        bekle(lambda: os.path.exists(hedef), neden="ilk istek yazıldı")
        bekle(self.pano_kapandi, neden="kapandı")
        with open(hedef) as f:
            self.assertEqual(f.read(), "0" * (256 * 1024))
        # Once it has closed, the next request opens a dialog again.
        self.gonder({"tur": "dosya-kaydet", "ad": "sonraki", "icerik": "x"})
        self.yaz(self.pano(), "Escape")
        bekle(self.pano_kapandi, neden="kapandı")

    def test_iptal_hicbir_sey_yazmaz(self):
        self.kopru()
        self.gonder({"tur": "dosya-kaydet", "ad": "iptal.txt", "icerik": "x"})
        pano = self.pano()
        self.yaz(pano, "Escape")
        bekle(self.pano_kapandi, neden="kapandı")
        self.kopru_turu(1)  # the dialog's answer has been handled
        self.assertEqual(os.listdir(self.klasor), [])

    def test_var_olan_dosya_onaydan_sonra_degisir(self):
        hedef = os.path.join(self.klasor, "var.txt")
        with open(hedef, "w") as f:
            f.write("eski")
        self.kopru()
        self.gonder({"tur": "dosya-kaydet", "ad": "var.txt", "icerik": "yeni"})
        pano = self.pano()
        onceki = set(self.gorunur_pencereler())
        self.yaz(pano, "Return", metin=hedef)
        onay = bekle(lambda: set(self.gorunur_pencereler()) - onceki, neden="onay sorusu")
        self.kopru_turu(1)  # the shell is waiting for the answer, not writing
        self.assertEqual(self.oku(hedef), "eski", "onaydan önce dokunulmaz")
        self.yaz(onay.pop(), "Return")  # "Replace" has the focus
        bekle(lambda: self.oku(hedef) == "yeni", neden="değiştirildi")

    def gorunur_pencereler(self):
        return self.masaustu.komut(["xdotool", "search", "--onlyvisible", "--class", "."],
                                   hata_yok=True).split()

    def oku(self, yol):
        with open(yol) as f:
            return f.read()

    def test_yazilamayan_yer_sessizce_biter(self):
        k = self.kopru()
        self.gonder({"tur": "dosya-kaydet", "ad": "a", "icerik": "x"})
        pano = self.pano()
        engel = os.path.join(self.klasor, "dosya")
        with open(engel, "w") as f:
            f.write("")
        self.yaz(pano, "Return", metin=os.path.join(engel, "a"))
        # Escape, pressed until the dialog (and any message the name brought up) has closed if
        # the name did not close it: by then, and a round trip through the bridge later,
        # whatever the name led to has been done.
        def kapat():
            if self.pano_kapandi():
                return True
            self.masaustu.xdotool("key", "--clearmodifiers", "Escape")
            return False
        bekle(kapat, aralik=0.5, neden="kapandı")
        self.kopru_turu(1)
        self.assertEqual(os.listdir(self.klasor), ["dosya"])
        self.assertIsNone(k.surec.poll())


if __name__ == "__main__":
    ortam.calistir()
