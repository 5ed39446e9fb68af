"""Incoming nevo:// links on Linux: the installed desktop file makes the shell the handler
of the scheme; `xdg-open` reaches the running instance or starts one, and the link's raw
text reaches the page."""
import contextlib
import os
import signal
import subprocess
import tempfile

import ortam
import yerel_ajan
from ortam import KopruTesti, bekle


class Baglanti(KopruTesti):
    def setUp(self):
        super().setUp()
        self.kurulum = yerel_ajan.Kurulum(os.path.join(self.masaustu.ev, "onek"))
        self.masaustu_dosyasi_kur()

    def masaustu_dosyasi_kur(self):
        """The build's desktop file (the template the install fills in), installed under the
        temporary XDG_DATA_HOME with the program's absolute path, and the desktop's scheme
        cache refreshed."""
        kaynak = os.path.join(os.path.dirname(os.path.dirname(ortam.NEVO)),
                              "app.nevo.Nevo.desktop.in")
        with open(kaynak, encoding="utf-8") as f:
            satirlar = f.read().splitlines()
        self.assertIn("MimeType=x-scheme-handler/nevo;", satirlar)
        ikili = ortam.on_yuklemeli_ikili(self.masaustu.ev, self.kurulum.ikili)
        satirlar = [("Exec=%s %%u" % ikili) if s.startswith("Exec=") else s
                    for s in satirlar]
        uygulamalar = os.path.join(self.masaustu.ortam["XDG_DATA_HOME"], "applications")
        os.makedirs(uygulamalar, exist_ok=True)
        with open(os.path.join(uygulamalar, "app.nevo.Nevo.desktop"), "w") as f:
            f.write("\n".join(satirlar) + "\n")
        self.masaustu.komut(["update-desktop-database", uygulamalar])

    def ortam_(self):
        return dict(self.masaustu.ortam, NEVO_ADRES=self.sunucu.adres + "/kopru.html",
                    G_DEBUG="fatal-criticals")

    def xdg_open(self, adres):
        """`xdg-open adres`, which runs the handler (a second nevo that hands the link to the
        running one) and ends with its status: checked to be 0, with a clean standard error."""
        ortam.calistir_ve_denetle(self.masaustu, ["xdg-open", adres], self.ortam_(), nevo=False)

    def ikinci(self, adres, beklenen=0):
        """A second launch of the installed shell with `adres` (bytes), checked as it ends."""
        ortam.calistir_ve_denetle(self.masaustu, [self.kurulum.ikili, adres], self.ortam_(),
                                  beklenen=beklenen)

    def acik_kabuk(self):
        return self.kopru(ikili=self.kurulum.ikili)

    def gizle(self, k):
        k.tus("ctrl+w")
        bekle(lambda: not k.gorunur(), neden="gizlendi")

    def test_calisan_kabuga_baglanti_sonucu_ulasir_pencere_one_gelir(self):
        k = self.acik_kabuk()
        self.gizle(k)
        self.xdg_open("nevo://auth/baglanti?kod=ABC&baglanti=tamam")
        o = self.olay(lambda o: o["tur"] == "baglanti", neden="bağlantı dönüşü")
        self.assertEqual((o["kod"], o["baglanti"]), ("ABC", "tamam"))
        bekle(k.gorunur, neden="pencere öne geldi")
        self.assertEqual(k.pencere_bul(), k.pencere)

    def test_calisan_kabuga_oturum_ulasir(self):
        self.acik_kabuk()
        self.xdg_open("nevo://giris#access_token=E%2B1&expires_in=3600&refresh_token=Y'2")
        o = self.olay(lambda o: o["tur"] == "oturum", neden="oturum")
        self.assertEqual((o["erisim"], o["yenileme"]), ("E+1", "Y'2"))

    def test_ham_metin_degistirilmeden_ulasir(self):
        self.acik_kabuk()
        # Were the path normalised, "auth/baglanti" would vanish and nothing would arrive.
        self.xdg_open("nevo://x/auth/baglanti/../../y?kod=a%27b&baglanti=t%C3%BCm")
        o = self.olay(lambda o: o["tur"] == "baglanti", neden="bağlantı dönüşü")
        self.assertEqual((o["kod"], o["baglanti"]), ("a'b", "tüm"))

    def test_soguk_baslangicta_kabuk_baglantiyla_acilir(self):
        hata = tempfile.TemporaryFile()
        self.addCleanup(hata.close)
        # xdg-open runs the shell it starts in the foreground and ends with its status.
        acici = subprocess.Popen(["xdg-open", "nevo://auth/baglanti?kod=SOGUK&baglanti=tamam"],
                                 env=self.ortam_(), stdout=subprocess.DEVNULL,
                                 stderr=hata)
        self.addCleanup(self.soguk_kapat, acici, hata)
        pencere = bekle(lambda: self.masaustu.komut(
            ["xdotool", "search", "--onlyvisible", "--name", "^Nevo$"], hata_yok=True).split(),
            neden="nevo penceresi")[0]
        self.olay(lambda o: o["tur"] == "hazir", neden="sayfa hazır")
        etkin = bekle(lambda: self.masaustu.komut(["xdotool", "getactivewindow"],
                                                  hata_yok=True).strip(), neden="etkin pencere")
        self.assertEqual(etkin, pencere)
        pid = int(self.masaustu.xdotool("getwindowpid", pencere))
        self.assertEqual(os.readlink("/proc/%d/exe" % pid), self.kurulum.ikili)
        self.assertIn(acici.poll(), (None, 0))  # xdg-open found the handler and ran it
        # Nothing waits for the page: the link came before it could listen, and is lost.
        self.gonder({"tur": "masaustu", "istek": 1, "eylem": "durum"})
        self.cevap(1)
        self.assertEqual(self.olaylar("baglanti"), [])

    def soguk_kapat(self, acici, hata):
        """Ends the shell xdg-open started with SIGTERM; xdg-open then ends with the shell's
        status, which must be 0, and their standard error must be clean."""
        for pid in ortam.torunlar(acici.pid):
            with contextlib.suppress(OSError):  # it may have ended meanwhile
                if os.readlink("/proc/%d/exe" % pid) == self.kurulum.ikili:
                    os.kill(pid, signal.SIGTERM)
        try:
            kod = acici.wait(20)
        except subprocess.TimeoutExpired:
            acici.kill()
            acici.wait()
            raise
        hata.seek(0)
        ortam.son_denetle("xdg-open ile açılan nevo", kod, 0, hata.read().decode(errors="replace"))

    def test_kotu_baglantilar_cokertmez(self):
        k = self.acik_kabuk()
        kotuler = [
            b"nevo://auth/baglanti?kod=" + b"a" * 100 * 1024,
            b"nevo://auth/baglanti?kod=\xff\xfe&baglanti=x",
            b"nevo://giris#access_token=\xc3&refresh_token=x",
            b"https://ornek.invalid/#access_token=a&refresh_token=b",
            b"file:///etc/passwd",
            b"--gapplication-service",
            b"nevo:",
            b"",
        ]
        for adres in kotuler:
            # GLib's own option asks for a second primary instance, which it refuses.
            self.ikinci(adres, beklenen=1 if adres == b"--gapplication-service" else 0)
            k.yasiyor_mu()
        self.ikinci("nevo://auth/baglanti?kod=SON")
        o = self.olay(lambda o: o["tur"] == "baglanti" and o["kod"] == "SON", neden="son bağlantı")
        self.assertEqual(o["baglanti"], "hata")
        uzun = [o for o in self.olaylar("baglanti") if len(o["kod"]) == 100 * 1024]
        self.assertEqual(len(uzun), 1)
        k.yasiyor_mu()


if __name__ == "__main__":
    ortam.calistir()
