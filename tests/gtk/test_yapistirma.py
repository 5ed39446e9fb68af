"""Pasting on Linux: an image alone on the clipboard (as a screenshot tool leaves it) reaches
the page's paste event as a file; a text paste reaches it unchanged, with no file."""
import os

import ortam
from ortam import KabukTesti


class Yapistirma(KabukTesti):
    def yapistirmalar(self):
        return [o for o in list(self.sunucu.olaylar) if o["tur"] == "yapistirma"]

    def yapistir(self, k):
        onceki = len(self.yapistirmalar())
        k.tus("ctrl+v")
        self.olay(lambda o: len(self.yapistirmalar()) > onceki, neden="yapıştırma")
        return self.yapistirmalar()[onceki]

    def test_panodaki_gorsel_dosya_olarak_metin_aynen_gelir(self):
        gorsel = os.path.join(self.masaustu.ev, "ekran.png")
        self.masaustu.komut(["convert", "-size", "7x5", "xc:#c0ffee", "png:" + gorsel])
        k = self.kabuk("/yapistirma.html")
        self.olay(lambda o: o["tur"] == "hazir", neden="sayfa hazır")
        k.sayfa_gorunur()
        k.tikla(300, 300)

        self.masaustu.pano_sahibi("image/png", gorsel)
        olay = self.yapistir(k)
        self.assertEqual(olay["dosyalar"], [{"tur": "image/png", "ad": "gorsel.png",
                                             "boyut": os.path.getsize(gorsel),
                                             "bas": [137, 80, 78, 71, 13, 10, 26, 10]}])
        self.assertEqual(olay["metin"], "")

        self.masaustu.pano_metni("merhaba ığüş")
        olay = self.yapistir(k)
        self.assertEqual((olay["dosyalar"], olay["metin"]), ([], "merhaba ığüş"))
        # The image paste came as one event: the text paste is the very next one.
        self.assertEqual(len(self.yapistirmalar()), 2)


if __name__ == "__main__":
    ortam.calistir()
