"""Downloads on Linux: every download of the engine goes through the real save dialog,
appears under its name only when complete, leaves nothing behind when cancelled or when the
shell quits, shows how far it is and, when done, offers the folder with the file selected.
Only the application's own pages download; a load that becomes a download keeps the page."""
import os
import time
import urllib.parse

import ortam
from ortam import KabukTesti, bekle


class Indirme(KabukTesti):
    def setUp(self):
        super().setUp()
        # As for the page's file save: GTK's file chooser leaves strings of its own behind.
        self.masaustu.ortam["ASAN_OPTIONS"] += ":detect_leaks=0"
        self.klasor = os.path.join(self.masaustu.ev, "indirilenler")
        os.makedirs(self.klasor)
        self.yanki_sayisi = 0

    # The shell, installed, with a notification service.
    def ac(self):
        yol = os.path.join(self.masaustu.ortam["XDG_DATA_HOME"], "applications")
        os.makedirs(yol, exist_ok=True)
        with open(os.path.join(yol, "app.nevo.Nevo.desktop"), "w") as f:
            f.write("[Desktop Entry]\nType=Application\nName=Nevo\nExec=%s %%u\n" % ortam.NEVO)
        self.bildirim = self.masaustu.sahte_servis("org.freedesktop.Notifications",
                                                   sablon="notification_daemon")
        k = self.kabuk("/indirme.html")
        self.olay(lambda o: o["tur"] == "hazir", neden="sayfa hazır")
        return k

    def komut(self, eylem, **ek):
        self.sunucu.komut_ekle(dict(ek, eylem=eylem))

    def yanki(self):
        """A round trip through the page: it still runs, and at which address."""
        self.yanki_sayisi += 1
        sayi = self.yanki_sayisi
        self.komut("yanki", sayi=sayi)
        return self.olay(lambda o: o["tur"] == "yanki" and o["sayi"] == sayi,
                         neden="yankı")["adres"]

    def pencereler(self):
        return self.masaustu.komut(["xdotool", "search", "--onlyvisible", "--name", "^Kaydet$"],
                                   hata_yok=True).split()

    def pano(self):
        return bekle(lambda: (self.pencereler() or [None])[0], neden="kaydet penceresi")

    def tus(self, pano, tus):
        self.masaustu.xdotool("windowactivate", "--sync", pano)
        time.sleep(0.3)
        self.masaustu.xdotool("key", "--clearmodifiers", tus)

    def onerilen_adla_kaydet(self):
        """Keeps the dialog's suggested name and puts the folder in front of it."""
        pano = self.pano()
        self.tus(pano, "Home")
        self.masaustu.xdotool("type", "--delay", 20, self.klasor + "/")
        time.sleep(0.3)
        self.tus(pano, "Return")
        bekle(lambda: not self.pencereler(), neden="pencere kapandı")

    def vazgec(self):
        self.tus(self.pano(), "Escape")
        bekle(lambda: not self.pencereler(), neden="pencere kapandı")

    def gorunur_pencereler(self):
        return self.masaustu.komut(["xdotool", "search", "--onlyvisible", "--class", "."],
                                   hata_yok=True).split()

    def icerik(self, ad):
        with open(os.path.join(self.klasor, ad), "rb") as f:
            return f.read()

    def bildirimler(self):
        return [c[2] for c in self.bildirim.GetCalls() if c[1] == "Notify"]

    def bitti_bildirimine_tikla(self):
        """Clicks the last finishing notification; the service numbers each new one in turn
        from 1, a replacing one keeps its number."""
        bildirimler = bekle(lambda: self.bildirimler() if any(
            str(b[3]) == "İndirme tamamlandı" for b in self.bildirimler()) else None,
            neden="bitti bildirimi")
        yeniler = [b for b in bildirimler if int(b[1]) == 0]
        son = [b for b in bildirimler if str(b[3]) == "İndirme tamamlandı"][-1]
        kimlik = int(son[1]) or next(i + 1 for i, b in enumerate(yeniler) if b is son)
        self.bildirim.EmitSignal("org.freedesktop.Notifications", "ActionInvoked", "us",
                                 [kimlik, "default"])
        return son

    def test_ek_onayla_ustune_yazilir_blob_kaydedilir_sayfa_kalir_klasor_gosterilir(self):
        dosya_yoneticisi = self.masaustu.sahte_servis(
            "org.freedesktop.FileManager1", "/org/freedesktop/FileManager1",
            "org.freedesktop.FileManager1")
        dosya_yoneticisi.AddMethod("", "ShowItems", "ass", "", "")
        hedef = os.path.join(self.klasor, "rapor ş.txt")
        with open(hedef, "w") as f:
            f.write("eski")
        k = self.ac()
        sayfa = self.yanki()
        self.komut("ek", ad="rapor ş.txt", boyut=5000)
        pano = self.pano()
        onceki = set(self.gorunur_pencereler())
        self.tus(pano, "Home")
        self.masaustu.xdotool("type", "--delay", 20, self.klasor + "/")
        self.tus(pano, "Return")
        onay = bekle(lambda: set(self.gorunur_pencereler()) - onceki, neden="onay sorusu")
        self.yanki()
        self.assertEqual(self.icerik("rapor ş.txt"), b"eski", "onaydan önce dokunulmaz")
        self.tus(onay.pop(), "Return")  # "Replace" has the focus
        yeni = bytes(ord("a") + i % 26 for i in range(5000))
        bekle(lambda: self.icerik("rapor ş.txt") == yeni, neden="ek yazıldı")
        self.assertEqual(os.listdir(self.klasor), ["rapor ş.txt"])
        # The load that became a download failed nothing: the page runs where it was.
        self.assertEqual(self.yanki(), sayfa)
        self.assertFalse(k.cevrimdisi_sayfa_var())

        son = self.bitti_bildirimine_tikla()
        self.assertEqual(str(son[4]), "rapor ş.txt")
        self.assertIn("Klasörde göster", [str(a) for a in son[5]])
        self.assertEqual(len(self.bildirimler()), 1, "bir saniyede biten ilerleme göstermez")
        cagri = bekle(lambda: [c for c in dosya_yoneticisi.GetCalls() if c[1] == "ShowItems"],
                      neden="dosya yöneticisi")[0]
        self.assertEqual([str(a) for a in cagri[2][0]],
                         ["file://" + urllib.parse.quote(hedef)])

        self.komut("blob", ad="not.txt", icerik="sayfanın yazdığı")
        self.onerilen_adla_kaydet()
        bekle(lambda: os.path.exists(os.path.join(self.klasor, "not.txt")), neden="blob yazıldı")
        self.assertEqual(self.icerik("not.txt"), "sayfanın yazdığı".encode())

    def test_baska_kokenli_cerceve_indiremez_acik_pencere_varken_istek_duser(self):
        klasorler = os.path.join(self.masaustu.ev, "acilan-klasorler.log")
        self.klasor_acici(klasorler)
        baska = ortam.TestSunucusu(ortam.FIKSTURLER).arka_planda()
        self.addCleanup(baska.server_close)
        self.addCleanup(baska.shutdown)
        self.ac()
        self.komut("cerceve", adres=baska.adres)  # another port: another origin
        if baska.olay_bekle(lambda o: o["tur"] == "cerceve-indirdi") is None:
            self.fail("çerçeve indirmeyi denemedi")
        # The frame's downloads started before this one: a dialog of theirs would show first.
        self.komut("blob", ad="sonra.txt", icerik="1")
        pano = self.pano()
        self.komut("blob", ad="dusen.txt", icerik="2")
        self.yanki()  # the page has asked for the second download by now
        self.masaustu.xdotool("windowactivate", "--sync", pano)
        self.assertEqual(len(self.pencereler()), 1)
        self.onerilen_adla_kaydet()
        bekle(lambda: os.path.exists(os.path.join(self.klasor, "sonra.txt")), neden="yazıldı")
        # Once it has closed, the next download opens a dialog again.
        self.komut("blob", ad="vazgecilen.txt", icerik="3")
        self.vazgec()
        self.yanki()
        self.assertEqual(os.listdir(self.klasor), ["sonra.txt"])

        # Without a file manager on the bus the folder opens.
        self.bitti_bildirimine_tikla()
        def acilanlar():
            if not os.path.exists(klasorler):
                return None
            with open(klasorler) as f:
                return f.read().split()
        self.assertEqual(bekle(acilanlar, neden="klasör açıldı"), [self.klasor])

    def klasor_acici(self, kayit):
        """The desktop's handler for folders: records each address it is given."""
        betik = os.path.join(self.masaustu.ev, "klasor-acici.sh")
        with open(betik, "w") as f:
            f.write('#!/bin/sh\nprintf "%%s\\n" "$1" >> "%s"\n' % kayit)
        os.chmod(betik, 0o755)
        uygulamalar = os.path.join(self.masaustu.ortam["XDG_DATA_HOME"], "applications")
        os.makedirs(uygulamalar, exist_ok=True)
        with open(os.path.join(uygulamalar, "klasor-acici.desktop"), "w") as f:
            f.write("[Desktop Entry]\nType=Application\nName=Klasör\nExec=%s %%u\n"
                    "MimeType=inode/directory;\n" % betik)
        with open(os.path.join(self.masaustu.ortam["XDG_CONFIG_HOME"], "mimeapps.list"),
                  "w") as f:
            f.write("[Default Applications]\ninode/directory=klasor-acici.desktop\n")

    def test_vazgecilen_ve_cikista_suren_indirme_iz_birakmaz(self):
        k = self.ac()
        self.komut("yavas", ad="iptal.bin", boyut=400000)
        self.vazgec()
        self.yanki()
        self.assertEqual(os.listdir(self.klasor), [])

        self.komut("yavas", ad="yarim.bin", boyut=400000)
        self.onerilen_adla_kaydet()
        # Half of it has come: written beside its place, under a hidden temporary name.
        yarim = bekle(lambda: [b for b in self.bildirimler() if "%50" in str(b[4])],
                      neden="ilerleme bildirimi")[-1]
        self.assertEqual((str(yarim[3]), str(yarim[4])), ("İndiriliyor", "yarim.bin · %50"))
        dosyalar = os.listdir(self.klasor)
        self.assertNotIn("yarim.bin", dosyalar)
        self.assertTrue(dosyalar and all(d.startswith(".yarim.bin.") for d in dosyalar),
                        dosyalar)
        k.bitir()
        self.assertEqual(os.listdir(self.klasor), [])


if __name__ == "__main__":
    ortam.calistir()
