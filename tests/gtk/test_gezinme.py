"""Navigation on Linux: other hosts go to the default browser, also a window a script
opens without a click and a server's redirect out of a page kept inside, while a frame from
elsewhere opens nothing; a failed load shows the offline page; Ctrl+R retries the address that
failed."""
import os
import socket
import struct
import threading
import time
from urllib.parse import urlencode

import ortam
from ortam import CEVRIMDISI_ZEMIN, KabukTesti, Sunucu, bekle, yakin

DIS, BOS, AC, KIMLIK, ANAYA = (210, 425), (210, 525), (210, 625), (510, 225), (210, 225)


class Gezinme(KabukTesti):
    def setUp(self):
        super().setUp()
        self.kayit = self.masaustu.sahte_tarayici()

    def tarayicidakiler(self):
        if not os.path.exists(self.kayit):
            return []
        with open(self.kayit) as f:
            return f.read().split()

    def sayfa_yerinde(self, k):
        """The page that was showing still runs: it answers a click with a beacon."""
        self.sunucu.olaylar.clear()
        k.tikla(*ANAYA)
        self.olay(lambda o: o["tur"] == "gitti" and o["yol"] == "/home")

    def tarayiciya_gider(self, nokta, beklenen):
        """A click at `nokta` hands `beklenen` to the browser and leaves the page running."""
        k = self.kabuk("/")
        k.sayfa_gorunur()
        k.tikla(*nokta)
        bekle(self.tarayicidakiler, neden="tarayıcı")
        self.assertEqual(self.tarayicidakiler(), [beklenen])
        self.sayfa_yerinde(k)

    def test_baska_host_tarayicida_acilir_sayfa_kalir(self):
        self.tarayiciya_gider(DIS, "http://dis.example.invalid/yol?a=1")

    def test_yeni_sekme_baglantisi_tarayiciya_gider(self):
        self.tarayiciya_gider(BOS, self.sunucu.adres + "/paylas")

    def test_window_open_tarayiciya_gider(self):
        self.tarayiciya_gider(AC, "http://pencere.example.invalid/ac")

    def betikle_tarayiciya_gider(self, sorgu, beklenen):
        """The script page with `sorgu` hands `beklenen` to the browser, and nothing else,
        and keeps showing."""
        k = self.kabuk("/betik_gezinmesi.html?" + sorgu)
        bekle(self.tarayicidakiler, neden="tarayıcı")
        self.masaustu.komutlar_bitsin(self.kayit.replace(".log", ".sh"))
        self.assertEqual(self.tarayicidakiler(), [beklenen])
        k.sayfa_gorunur()
        self.assertFalse(k.cevrimdisi_sayfa_var())
        return k

    def test_zamanlayicidan_window_open_tarayiciya_gider(self):
        hedef = "http://belgeler.example.invalid/"
        self.betikle_tarayiciya_gider(urlencode({"pencere": hedef}), hedef)

    def test_betigin_baska_hoste_gezinmesi_tarayiciya_gider_sayfa_kalir(self):
        hedef = "http://odeme.example.invalid/al?tutar=1"
        k = self.betikle_tarayiciya_gider(urlencode({"git": hedef}), hedef)
        self.olay(lambda o: o["tur"] == "yuklendi")
        k.yasiyor_mu()

    def test_cerceve_gezinmesi_iptal_ust_sayfanin_betikle_gezinmesi_tarayiciya_gider(self):
        baska = Sunucu(ortam.FIKSTURLER).arka_planda()
        self.addCleanup(baska.server_close)
        self.addCleanup(baska.shutdown)
        cerceve = baska.adres + "/kendini_gonder.html?" + urlencode(
            {"hedef": "http://reklam.example.invalid/"})
        sonra = "http://sonra.example.invalid/"
        self.betikle_tarayiciya_gider(urlencode({"cerceve": cerceve, "sonra_git": sonra}), sonra)

    def test_baska_kokenden_cercevenin_gezinmesi_hicbir_sey_acmaz(self):
        baska = Sunucu(ortam.FIKSTURLER).arka_planda()
        self.addCleanup(baska.server_close)
        self.addCleanup(baska.shutdown)
        cerceve = baska.adres + "/kendini_gonder.html?" + urlencode(
            {"hedef": "http://reklam.example.invalid/"})
        sonra = "http://sonra.example.invalid/"
        # The top page's new window follows the frame's navigation: once it is in the
        # browser and no browser run is left, the frame's would be there too.
        self.betikle_tarayiciya_gider(urlencode({"cerceve": cerceve, "sonra": sonra}), sonra)

    def test_iceride_tutulan_sayfanin_yonlendirmesi_tarayiciya_gider_sayfa_kalir(self):
        hedef = "http://giris.example.invalid/devam?kod=1"
        yonlendirme = self.sunucu.adres + "/yonlendir?" + urlencode({"hedef": hedef})
        k = self.kabuk("/betik_gezinmesi.html?" + urlencode({"baglanti": yonlendirme}))
        self.olay(lambda o: o["tur"] == "yuklendi")
        k.sayfa_gorunur()
        k.tikla(*ANAYA)
        bekle(self.tarayicidakiler, neden="tarayıcı")
        self.assertEqual(self.tarayicidakiler(), [hedef])
        # The page that was showing runs on: it still answers, and no offline page came.
        self.sunucu.olaylar.clear()
        k.tus("ctrl+r")
        self.olay(lambda o: o["tur"] == "yuklendi", neden="sayfa yeniden yüklendi")
        self.assertFalse(k.cevrimdisi_sayfa_var())
        k.yasiyor_mu()

    def test_buyuk_harfli_host_adresi_perdeyi_kaldirir_sayfa_gorunumde_kalir(self):
        port = self.sunucu.server_address[1]
        k = self.kabuk(adres="http://LOCALHOST:%d/" % port)
        k.sayfa_gorunur()
        self.assertEqual(self.tarayicidakiler(), [])

    def test_kimlik_saglayicisi_gorunumde_kalir(self):
        k = self.kabuk("/")
        k.sayfa_gorunur()
        k.tikla(*KIMLIK)
        # The view goes there itself (the host does not resolve here: the offline page).
        bekle(lambda: yakin(k.renk(440, 700), CEVRIMDISI_ZEMIN), neden="görünümde gezindi")
        self.assertEqual(self.tarayicidakiler(), [])


class Cevrimdisi(KabukTesti):
    def dusuren(self):
        """A listener on a free port that resets every connection as it comes, as a network
        that lets nothing through would; returns its port and its count of connections."""
        dinleyen = socket.socket()
        dinleyen.setsockopt(socket.SOL_SOCKET, socket.SO_REUSEADDR, 1)
        dinleyen.bind(("127.0.0.1", 0))
        dinleyen.listen(8)
        sayac = []

        def dinle():
            while True:
                try:
                    baglanti, _ = dinleyen.accept()
                except OSError:  # closed: the test is done with it
                    return
                baglanti.setsockopt(socket.SOL_SOCKET, socket.SO_LINGER,
                                    struct.pack("ii", 1, 0))
                baglanti.close()
                sayac.append(1)
        threading.Thread(target=dinle, daemon=True).start()

        def kapat():
            if dinleyen.fileno() != -1:
                dinleyen.shutdown(socket.SHUT_RDWR)
                dinleyen.close()
        return dinleyen.getsockname()[1], sayac, kapat

    def test_ag_yokken_cevrimdisi_sayfa_ctrl_r_basarisiz_adresi_yeniden_dener(self):
        port, baglantilar, kapat = self.dusuren()
        self.addCleanup(kapat)
        k = self.kabuk(adres="http://127.0.0.1:%d/" % port)
        bekle(lambda: k.cevrimdisi_sayfa_var(), neden="çevrimdışı sayfa")
        # The offline page keeps the sign-in window of the address that failed.
        self.assertEqual(k.geometri()[2:], (880, 820))
        self.assertFalse(k.boyutlanabilir())
        onceki = len(baglantilar)
        k.tus("ctrl+r")  # still offline: the same page again
        bekle(lambda: len(baglantilar) > onceki, neden="yeniden denendi")
        bekle(k.cevrimdisi_sayfa_var, neden="yine çevrimdışı sayfa")
        self.assertEqual(k.geometri()[2:], (880, 820))
        kapat()
        sunucu = Sunucu(ortam.FIKSTURLER, port).arka_planda()
        self.addCleanup(sunucu.server_close)
        self.addCleanup(sunucu.shutdown)
        k.tus("ctrl+r")
        self.assertIsNotNone(sunucu.olay_bekle(lambda o: o["tur"] == "yuklendi"))
        k.sayfa_gorunur()

    def test_baglanip_hic_cevap_vermeyen_sunucu_60_saniyede_cevrimdisi_sayfaya_duser(self):
        dinleyen = socket.socket()  # the kernel accepts; nobody ever answers
        self.addCleanup(dinleyen.close)
        dinleyen.bind(("127.0.0.1", 0))
        dinleyen.listen(8)
        basla = time.monotonic()
        k = self.kabuk(adres="http://127.0.0.1:%d/" % dinleyen.getsockname()[1])
        bekle(k.cevrimdisi_sayfa_var, 90, aralik=0.5, neden="çevrimdışı sayfa")
        self.assertGreaterEqual(time.monotonic() - basla, 58)


if __name__ == "__main__":
    ortam.calistir()
