"""The context menu on Linux: entries fit for an application (editing, selected text, links,
images; no browser navigation), spelling suggestions at the top on a misspelled word, and no
menu where the page handles the right click itself. An image the user saves is saved from
wherever it comes, another origin included."""
import os
import time
import urllib.parse

import ortam
from ortam import KabukTesti, bekle

# Points of the fixture page (yazi_alani.html).
ALAN, METIN, BAG, RESIM, KENDI = (60, 100), (60, 165), (60, 225), (70, 300), (80, 390)
DUZENLEME = ["Geri Al", "Yinele", "Kes", "Kopyala", "Yapıştır", "Tümünü Seç"]


class BaglamMenusu(KabukTesti):
    def setUp(self):
        super().setUp()
        # Saving the image opens GTK's file chooser, which leaves strings of its own behind.
        self.masaustu.ortam["ASAN_OPTIONS"] += ":detect_leaks=0"
        self.tarayici = self.masaustu.sahte_tarayici()
        self.kayit = os.path.join(self.masaustu.ev, "baglam.log")

    def satirlar(self, tur):
        if not os.path.exists(self.kayit):
            return []
        with open(self.kayit, encoding="utf-8") as f:
            return [s.rstrip("\n").split("\t")[1:] for s in f if s.startswith(tur + "\t")]

    def sag_tikla(self, k, nokta):
        """A right click at `nokta`; the entries of the menu it opens."""
        onceki = len(self.satirlar("menu"))
        gx, gy, _, _ = k.geometri()
        self.masaustu.xdotool("mousemove", "--sync", gx + nokta[0], gy + nokta[1])
        self.masaustu.xdotool("click", 3)
        bekle(lambda: len(self.satirlar("menu")) > onceki, neden="bağlam menüsü")
        return self.satirlar("menu")[-1]

    def sec(self, sira):
        """Chooses the open menu's entry `sira` (from 1) with the keyboard."""
        self.masaustu.xdotool("key", *(["Down"] * sira + ["Return"]))

    def kapat(self):
        self.masaustu.xdotool("key", "Escape")

    def kaydet_penceresi(self):
        return self.masaustu.komut(["xdotool", "search", "--onlyvisible", "--name", "^Kaydet$"],
                                   hata_yok=True).split()

    def sozluk_yuklu(self, k):
        with open("/proc/%d/maps" % k.surec.pid) as f:
            return "enchant_hunspell" in f.read()

    def test_yazim_sozlukleri_yazi_alani_odaklaninca_yuklenir(self):
        k = self.kabuk("/yazi_alani.html", ek_ortam={"NEVO_TEST_BAGLAM_KAYDI": self.kayit})
        self.olay(lambda o: o["tur"] == "yuklendi", neden="sayfa yüklendi")
        k.sayfa_gorunur()
        # A context menu waits for dictionaries that are loading: once it shows, any load
        # started with the page would be over.
        self.sag_tikla(k, BAG)
        self.kapat()
        self.assertFalse(self.sozluk_yuklu(k), "sözlükler yazı alanı odaklanmadan yüklendi")
        k.tikla(*ALAN)
        bekle(lambda: self.sozluk_yuklu(k), neden="yazı alanı odaklanınca sözlükler")
        self.masaustu.xdotool("type", "--delay", "60", "helo ")
        self.olay(lambda o: o["tur"] == "deger" and o["deger"] == "helo ", neden="yazı")
        ogeler = self.sag_tikla(k, (ALAN[0] - 10, ALAN[1]))
        self.assertGreater(ogeler.index("---"), 0, ogeler)
        self.kapat()

    def test_menu_isabete_gore_kurulur_ve_secilen_calisir(self):
        # The image lives on another port: another origin than the application's.
        baska = ortam.TestSunucusu(ortam.FIKSTURLER).arka_planda()
        self.addCleanup(baska.server_close)
        self.addCleanup(baska.shutdown)
        resim = baska.adres + "/resim.svg"
        k = self.kabuk("/yazi_alani.html?resim=" + urllib.parse.quote(resim, safe=""),
                       ek_ortam={"NEVO_TEST_BAGLAM_KAYDI": self.kayit})
        self.olay(lambda o: o["tur"] == "yuklendi", neden="sayfa yüklendi")
        k.sayfa_gorunur()

        # A misspelled word: its suggestions first, then the editing entries; choosing one
        # replaces the word.
        k.tikla(*ALAN)
        self.masaustu.xdotool("type", "--delay", "60", "helo ")
        self.olay(lambda o: o["tur"] == "deger" and o["deger"] == "helo ", neden="yazı")
        ogeler = self.sag_tikla(k, (ALAN[0] - 10, ALAN[1]))
        ayrac = ogeler.index("---")
        self.assertGreater(ayrac, 0, ogeler)
        self.assertEqual(ogeler[ayrac + 1:], DUZENLEME)
        self.sunucu.olaylar.clear()
        self.sec(1)
        secilen = self.olay(lambda o: o["tur"] == "deger", neden="öneri yazıldı")["deger"]
        self.assertEqual(secilen, ogeler[0] + " ")

        # Selected text: Copy only.
        gx, gy, _, _ = k.geometri()
        self.masaustu.xdotool("mousemove", "--sync", gx + METIN[0], gy + METIN[1])
        self.masaustu.xdotool("click", "--repeat", 2, "--delay", 80, 1)
        self.assertEqual(self.sag_tikla(k, METIN), ["Kopyala"])
        self.kapat()

        # A link: opened in the browser through the navigation rule, or its address copied.
        self.assertEqual(self.sag_tikla(k, BAG),
                         ["Bağlantıyı Tarayıcıda Aç", "Bağlantı Adresini Kopyala"])
        self.sec(1)
        bekle(lambda: os.path.exists(self.tarayici), neden="tarayıcı")
        self.masaustu.komutlar_bitsin(self.tarayici.replace(".log", ".sh"))
        with open(self.tarayici) as f:
            self.assertEqual(f.read().split(), ["https://ornek.example/sayfa"])

        # An image: copied, or saved, which starts a download of its address, let through
        # although another origin's: the save dialog asks where, and the file arrives there.
        self.assertEqual(self.sag_tikla(k, RESIM), ["Resmi Kopyala", "Resmi Kaydet…"])
        self.sec(2)
        bekle(lambda: self.satirlar("indirme"), neden="indirme başladı")
        self.assertEqual(self.satirlar("indirme"), [[resim]])
        pano = bekle(self.kaydet_penceresi, neden="kaydet penceresi")[0]
        klasor = os.path.join(self.masaustu.ev, "resimler")
        os.makedirs(klasor)
        self.masaustu.xdotool("windowactivate", "--sync", pano)
        self.masaustu.xdotool("key", "Home")
        self.masaustu.xdotool("type", "--delay", 20, klasor + "/")
        time.sleep(0.3)  # the dialog's completion of the typed folder settles
        self.masaustu.xdotool("key", "Return")
        bekle(lambda: not self.kaydet_penceresi(), neden="kaydet penceresi kapandı")
        with open(os.path.join(ortam.FIKSTURLER, "resim.svg"), "rb") as f:
            beklenen = f.read()
        bekle(lambda: os.listdir(klasor) == ["resim.svg"], neden="resim kaydedildi")
        with open(os.path.join(klasor, "resim.svg"), "rb") as f:
            self.assertEqual(f.read(), beklenen)
        self.masaustu.xdotool("windowactivate", "--sync", k.pencere)

        # The page's own menu: none of the shell's. A later right click elsewhere opens one,
        # so by then the first would have been recorded.
        menuler = len(self.satirlar("menu"))
        gx, gy, _, _ = k.geometri()
        self.masaustu.xdotool("mousemove", "--sync", gx + KENDI[0], gy + KENDI[1])
        self.masaustu.xdotool("click", 3)
        self.olay(lambda o: o["tur"] == "kendi-menusu", neden="sayfanın kendi menüsü")
        self.sag_tikla(k, BAG)
        self.kapat()
        self.assertEqual(len(self.satirlar("menu")), menuler + 1)


if __name__ == "__main__":
    ortam.calistir()
