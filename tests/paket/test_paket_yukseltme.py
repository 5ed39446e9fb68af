"""Upgrading the installed package to a build of the next version keeps what the user had:
the preferences, the launch-at-login entry and the signed-in session (the tokens the
application's sign-in keeps in the page's local storage, in the shell's website data)."""
import os
import subprocess
import sys

import paket  # first: it makes the integration tests' harness importable
import ortam
from ortam import KopruTesti

KAYNAK, INSA = os.environ.get("NEVO_KAYNAK", ""), os.environ.get("NEVO_PAKET_INSA", "")
YENI_PAKETLER = os.environ.get("NEVO_YENI_PAKETLER", "")
OTURUM = "erisim-42.yenileme-42"


def sonraki_surum(surum):
    parcalar = surum.split(".")
    parcalar[-1] = str(int(parcalar[-1]) + 1)
    return ".".join(parcalar)


class Yukseltme(KopruTesti):
    def masaustu_kur(self):
        m = super().masaustu_kur()
        m.ortam["XDG_DATA_DIRS"] = paket.SISTEM_VERI_DIZINLERI
        return m

    def takim(self):
        """A shell of the installed program on the kit's page; the page's report as it
        loaded."""
        onceki = len(self.olaylar("hazir"))
        k = self.kabuk("/takim.html", ikili=paket.KURULU_PROGRAM)
        ortam.bekle(lambda: len(self.olaylar("hazir")) > onceki, neden="takım sayfası hazır")
        return k, self.olaylar("hazir")[onceki]

    def ayarlar(self, eylemler):
        """The status after the settings requests `eylemler`, sent through the kit."""
        onceki = len(self.olaylar("es-zamanli"))
        self.sunucu.komut_ekle({"esZamanli": eylemler})
        ortam.bekle(lambda: len(self.olaylar("es-zamanli")) > onceki, neden="ayar istekleri")
        return self.olaylar("es-zamanli")[onceki]["durumlar"][-1]

    def test_yukseltme_tercihleri_otomatik_baslatmayi_ve_oturumu_korur(self):
        onceki = paket.kurulu_surum()
        self.assertIsNotNone(onceki, "önceki paket kurulu değil")
        autostart = os.path.join(self.masaustu.ortam["XDG_CONFIG_HOME"], "autostart",
                                 "app.nevo.Nevo.desktop")

        # The previous build: the user turns settings on and signs in.
        k, _ = self.takim()
        durum = self.ayarlar([["uyanik", True], ["menu-cubugu", True], ["baslangic", True]])
        self.assertEqual((durum["uyanikTut"], durum["menuCubugu"], durum["baslangic"]),
                         (True, True, True), durum)
        self.assertTrue(os.path.isfile(autostart))
        self.sunucu.komut_ekle({"oturum": OTURUM})
        self.assertEqual(self.olay(lambda o: o["tur"] == "oturum", neden="oturum")["oturum"],
                         OTURUM)
        k.bitir()

        # The next version, built from the same sources, installed over it.
        yeni = sonraki_surum(onceki)
        paketle = os.path.join(os.path.dirname(os.path.abspath(__file__)), "paketle.py")
        subprocess.run([sys.executable, paketle, KAYNAK, INSA, YENI_PAKETLER, yeni],
                       check=True, stdout=subprocess.DEVNULL)
        paket.kur(paket.deb(YENI_PAKETLER))
        self.assertEqual(paket.kurulu_surum(), yeni)
        r = subprocess.run([paket.KURULU_PROGRAM, "--version"], capture_output=True, text=True)
        self.assertEqual(r.stdout, "nevo %s\n" % yeni)

        # Everything the user had is still there.
        k, hazir = self.takim()
        self.assertEqual(hazir["oturum"], OTURUM, "oturum sürmedi")
        durum = self.ayarlar([["durum", False]])
        self.assertEqual((durum["uyanikTut"], durum["menuCubugu"], durum["baslangic"]),
                         (True, True, True), durum)
        with open(autostart, encoding="utf-8") as f:
            self.assertIn('Exec="%s"' % paket.KURULU_PROGRAM, f.read())
        k.bitir()


if __name__ == "__main__":
    ortam.calistir()
