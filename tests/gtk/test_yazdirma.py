"""Printing on Linux: Ctrl+P opens the desktop's print dialog, as the page's window.print()
does; cancelling it leaves the page as it was; a page that handles Ctrl+P itself keeps it."""
import ortam
from ortam import KabukTesti, bekle

ALAN, DUGME = (60, 100), (80, 470)


class Yazdirma(KabukTesti):
    # The print-to-file printer alone: the network printers' backend looks for the system
    # bus, which the test's world does not have, and warns.
    gtk_ayarlari = {"gtk-print-backends": "file"}

    def setUp(self):
        super().setUp()
        # The print dialog grows GLib's quark table past its first block, which GLib leaves
        # behind on purpose (see test_kisayol.py): no leak check for these shells.
        self.masaustu.ortam["ASAN_OPTIONS"] += ":detect_leaks=0"

    def pencereler(self):
        return set(self.masaustu.komut(["xdotool", "search", "--onlyvisible", "--name", "."],
                                       hata_yok=True).split())

    def sayfa(self, yol):
        k = self.kabuk(yol)
        self.olay(lambda o: o["tur"] == "yuklendi", neden="sayfa yüklendi")
        k.sayfa_gorunur()
        k.tikla(*ALAN)
        self.masaustu.xdotool("type", "--delay", "60", "yazi")
        self.olay(lambda o: o["tur"] == "deger" and o["deger"] == "yazi", neden="yazı")
        return k

    def tus_olayi(self, tus):
        return self.olay(lambda o: o["tur"] == "tus" and o["tus"] == tus, neden="tuş " + tus)

    def iptal_edilir(self, k, onceki, deger):
        """The print dialog that opened over the shell is cancelled with Escape; the page is
        as it was (its field holds `deger`) and answers keys."""
        diyalog = bekle(lambda: self.pencereler() - onceki, neden="yazdırma penceresi").pop()
        bekle(lambda: self.masaustu.xdotool("getactivewindow").strip() == diyalog,
              neden="yazdırma penceresi odakta")
        self.masaustu.xdotool("key", "Escape")
        bekle(lambda: not (self.pencereler() - onceki), neden="yazdırma penceresi kapandı")
        self.sunucu.olaylar.clear()
        k.tus("b")
        self.assertEqual(self.tus_olayi("b")["deger"], deger)

    def test_ctrl_p_ve_window_print_yazdirma_penceresini_acar(self):
        k = self.sayfa("/yazi_alani.html")
        onceki = self.pencereler()
        k.tus("ctrl+p")
        self.iptal_edilir(k, onceki, "yazi")
        k.tikla(*DUGME)
        self.iptal_edilir(k, onceki, "yazib")
        k.bitir()

        # The page's own Ctrl+P: no dialog, by the time a later key has reached the page.
        self.sunucu.olaylar.clear()
        k = self.sayfa("/yazi_alani.html?kendi=p")
        onceki = self.pencereler()
        k.tus("ctrl+p")
        self.assertEqual(self.tus_olayi("p")["tuttu"], "true")
        k.tus("b")
        self.tus_olayi("b")
        self.assertEqual(self.pencereler(), onceki)


if __name__ == "__main__":
    ortam.calistir()
