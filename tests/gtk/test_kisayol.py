"""The global hot key, the shortcut recorder and the quick-entry panel under X11: real
grabs, real key presses (xdotool), and the page receiving what was typed."""
import os
import subprocess
import sys

import ortam
from ortam import KopruTesti, bekle

CTRL_ALT = 4 | 8  # ControlMask | Mod1Mask


class Kisayol(KopruTesti):
    def pencere(self, ad):
        cikti = self.masaustu.komut(["xdotool", "search", "--onlyvisible", "--name", ad],
                                    hata_yok=True).split()
        return cikti[0] if cikti else None

    def kaydediciyi_ac(self, istek):
        self.gonder({"tur": "masaustu", "istek": istek, "eylem": "kisayol-kaydet"})
        return bekle(lambda: self.pencere("^Kısayol$"), neden="kaydedici")

    def kaydet(self, tuslar, istek):
        """Records `tuslar` through the recorder; returns the reply's status."""
        levha = self.kaydediciyi_ac(istek)
        self.masaustu.xdotool("windowactivate", "--sync", levha)
        self.masaustu.xdotool("key", tuslar)
        return self.cevap(istek)

    def panel(self):
        return self.pencere("^Nevo hızlı giriş$")

    def test_kaydedilen_kisayol_paneli_acar_ve_metin_sayfaya_ulasir(self):
        k = self.kopru()
        durum = self.kaydet("ctrl+alt+j", 1)
        self.assertEqual(durum["kisayol"], "Ctrl+Alt+J")
        self.assertIsNone(self.pencere("^Kısayol$"))
        # The new hot key works at once, from anywhere.
        self.masaustu.xdotool("key", "ctrl+alt+j")
        panel = bekle(self.panel, neden="hızlı panel")
        bekle(lambda: self.masaustu.xdotool("getactivewindow").strip() == panel,
              neden="panel odakta")
        self.masaustu.xdotool("type", "--delay", "20", "  Merhaba \"dünya\" 'ĞŞİ ığüşöç' 😀  ")
        self.masaustu.xdotool("key", "Return")
        o = self.olay(lambda o: o["tur"] == "hizli", neden="hızlı mesaj")
        self.assertEqual(o["metin"], "Merhaba \"dünya\" 'ĞŞİ ığüşöç' 😀")
        bekle(lambda: self.panel() is None, neden="panel kapandı")
        bekle(lambda: self.masaustu.xdotool("getactivewindow").strip() == k.pencere,
              neden="ana pencere öne geldi")

    def test_kisayol_paneli_acip_kapatir_ve_yeniden_bos_acar(self):
        self.kopru()
        self.kaydet("ctrl+alt+j", 1)
        self.masaustu.xdotool("key", "ctrl+alt+j")
        panel = bekle(self.panel, neden="hızlı panel")
        bekle(lambda: self.masaustu.xdotool("getactivewindow").strip() == panel, neden="odak")
        self.masaustu.xdotool("type", "yarım")
        self.masaustu.xdotool("key", "Escape")
        bekle(lambda: self.panel() is None, neden="Escape gizler")
        self.masaustu.xdotool("key", "ctrl+alt+j")
        panel = bekle(self.panel, neden="yeniden açıldı")
        bekle(lambda: self.masaustu.xdotool("getactivewindow").strip() == panel, neden="odak")
        self.masaustu.xdotool("key", "Return")  # an empty field sends nothing
        self.masaustu.xdotool("key", "ctrl+alt+j")
        bekle(lambda: self.panel() is None, neden="kısayol gizler")
        self.assertEqual(self.olaylar("hizli"), [])

    def test_baska_pencere_odaklaninca_panel_gizlenir(self):
        self.kopru()
        self.kaydet("ctrl+alt+j", 1)
        self.masaustu.xdotool("key", "ctrl+alt+j")
        panel = bekle(self.panel, neden="hızlı panel")
        bekle(lambda: self.masaustu.xdotool("getactivewindow").strip() == panel, neden="odak")
        baska = self.masaustu._baslat(["xmessage", "-name", "baska", "başka uygulama"])
        self.addCleanup(baska.kill)
        diger = bekle(lambda: self.pencere("^baska$") or self.pencere("xmessage"),
                      neden="başka pencere")
        self.masaustu.xdotool("windowactivate", "--sync", diger)
        bekle(lambda: self.panel() is None, neden="odak gidince gizlenir")

    def test_baska_istemcinin_tuttugu_kombinasyon_reddedilir_eski_kisayol_calisir(self):
        self.kopru()
        self.kaydet("ctrl+alt+j", 1)
        tutucu = subprocess.Popen([sys.executable, os.path.join(os.path.dirname(__file__),
                                                                "x_tutucu.py"), "m", str(CTRL_ALT)],
                                  env=self.masaustu.ortam, stdin=subprocess.PIPE,
                                  stdout=subprocess.PIPE, text=True)
        self.addCleanup(tutucu.kill)
        self.assertEqual(tutucu.stdout.readline().strip(), "tuttu")
        levha = self.kaydediciyi_ac(2)
        self.masaustu.xdotool("windowactivate", "--sync", levha)
        self.masaustu.xdotool("key", "ctrl+alt+m")
        # Refused, the recorder stays open: the next combination is the one recorded.
        self.masaustu.xdotool("key", "ctrl+alt+k")
        durum = self.cevap(2)
        self.assertEqual(durum["kisayol"], "Ctrl+Alt+K")
        self.assertEqual([o["istek"] for o in self.olaylar("cevap")], [1, 2])

    def test_reddedilen_kombinasyon_kaydediciyi_acik_tutar_ctrl_escape_vazgecer(self):
        self.kopru()
        self.kaydet("ctrl+alt+j", 1)
        tutucu = subprocess.Popen([sys.executable, os.path.join(os.path.dirname(__file__),
                                                                "x_tutucu.py"), "m", str(CTRL_ALT)],
                                  env=self.masaustu.ortam, stdin=subprocess.PIPE,
                                  stdout=subprocess.PIPE, text=True)
        self.addCleanup(tutucu.kill)
        self.assertEqual(tutucu.stdout.readline().strip(), "tuttu")
        levha = self.kaydediciyi_ac(2)
        self.masaustu.xdotool("windowactivate", "--sync", levha)
        self.masaustu.xdotool("key", "ctrl+alt+m")
        self.masaustu.xdotool("key", "super+k")  # Super alone: refused, stays open
        self.assertIsNotNone(self.pencere("^Kısayol$"))
        self.masaustu.xdotool("key", "ctrl+Escape")
        durum = self.cevap(2)
        self.assertEqual(durum["kisayol"], "Ctrl+Alt+J")
        self.assertIsNone(self.pencere("^Kısayol$"))
        self.assertEqual([o["istek"] for o in self.olaylar("cevap")], [1, 2])
        # The old hot key still works.
        self.masaustu.xdotool("key", "ctrl+alt+j")
        bekle(self.panel, neden="eski kısayol panel açar")

    def test_kisayol_sil_kaydi_kaldirir(self):
        self.kopru()
        self.kaydet("ctrl+alt+j", 1)
        self.gonder({"tur": "masaustu", "istek": 2, "eylem": "kisayol-sil"})
        self.assertIsNone(self.cevap(2)["kisayol"])
        # The combination is free again: another client may take it.
        tutucu = subprocess.Popen([sys.executable, os.path.join(os.path.dirname(__file__),
                                                                "x_tutucu.py"), "j", str(CTRL_ALT)],
                                  env=self.masaustu.ortam, stdin=subprocess.PIPE,
                                  stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)
        self.addCleanup(tutucu.kill)
        self.assertEqual(tutucu.stdout.readline().strip(), "tuttu")
        self.assertIsNone(tutucu.poll())


if __name__ == "__main__":
    ortam.calistir()
