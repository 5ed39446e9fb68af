"""`nevo --version` and `nevo --help` answer on a machine without a desktop: no display, no
session bus, no running instance; they print to standard output and end with status 0."""
import os
import shutil
import subprocess
import tempfile
import unittest

from ortam import NEVO, son_denetle

SURUM = os.environ.get("NEVO_SURUM", "")


class KomutSatiri(unittest.TestCase):
    def setUp(self):
        self.ev = tempfile.mkdtemp(prefix="nevo-komut-")
        self.addCleanup(shutil.rmtree, self.ev, ignore_errors=True)
        # Neither a display nor a bus: the bus address points at nothing.
        self.ortam = {k: v for k, v in os.environ.items()
                      if not k.startswith(("DISPLAY", "WAYLAND", "DBUS_", "XDG_", "GDK_"))}
        self.ortam.update(HOME=self.ev, XDG_RUNTIME_DIR=self.ev,
                          DBUS_SESSION_BUS_ADDRESS="unix:path=" + os.path.join(self.ev, "yok"))

    def calistir(self, *secenekler):
        r = subprocess.run([NEVO, *secenekler], env=self.ortam, capture_output=True,
                           timeout=60)
        return r.returncode, r.stdout.decode(), r.stderr.decode(errors="replace")

    def test_ortam_masaustusuzdur_kabuk_acilamaz(self):
        kod, _, _ = self.calistir()
        self.assertNotEqual(kod, 0, "ekransız ortamda kabuk açılmamalı")

    def test_surum_yazar_sifirla_biter(self):
        self.assertTrue(SURUM)
        kod, cikti, hata = self.calistir("--version")
        son_denetle("nevo --version", kod, 0, hata)
        self.assertEqual((cikti, hata), ("nevo %s\n" % SURUM, ""))

    def test_yardim_secenekleri_anlatir_sifirla_biter(self):
        for secenek in ("--help", "-h"):
            kod, cikti, hata = self.calistir(secenek)
            son_denetle("nevo " + secenek, kod, 0, hata)
            self.assertEqual(hata, "")
            self.assertTrue(cikti.startswith("Kullanım: nevo "), cikti)
            for parca in ("--version", "--help", "NEVO_ADRES", "nevo://"):
                self.assertIn(parca, cikti)

    def test_baglantidan_once_de_sonra_da_secenek_sayilir(self):
        kod, cikti, hata = self.calistir("nevo://auth/baglanti?kod=1", "--version")
        son_denetle("nevo nevo://… --version", kod, 0, hata)
        self.assertEqual(cikti, "nevo %s\n" % SURUM)


if __name__ == "__main__":
    unittest.main(verbosity=2)
