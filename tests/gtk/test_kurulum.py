"""The install: the desktop entry names the installed program by its absolute path, so the
desktop (and GIO) finds the application wherever it was installed."""
import os
import shutil
import subprocess
import tempfile
import unittest

INSA = os.environ.get("NEVO_INSA", "build")
GIRDI = os.path.join("share", "applications", "app.nevo.Nevo.desktop")


def kur(onek, **ortam):
    subprocess.run(["cmake", "--install", INSA, "--prefix", onek], check=True,
                   capture_output=True, env=dict(os.environ, **ortam))


def exec_satiri(yol):
    with open(yol, encoding="utf-8") as f:
        return [s.strip() for s in f if s.startswith("Exec=")]


class MasaustuGirdisi(unittest.TestCase):
    def setUp(self):
        self.kok = tempfile.mkdtemp(prefix="nevo-kurulum-")
        self.addCleanup(shutil.rmtree, self.kok, ignore_errors=True)

    def test_onekli_kurulum_programi_tam_yoluyla_adlandirir(self):
        onek = os.path.join(self.kok, "ev", ".local")
        kur(onek)
        girdi = os.path.join(onek, GIRDI)
        self.assertEqual(exec_satiri(girdi), ["Exec=%s %%u" % os.path.join(onek, "bin", "nevo")])
        self.assertTrue(os.access(os.path.join(onek, "bin", "nevo"), os.X_OK))

    def test_destdir_dosyayi_sahneye_yazar_yolu_onekten_alir(self):
        sahne = os.path.join(self.kok, "sahne")
        kur("/opt/nevo", DESTDIR=sahne)
        girdi = os.path.join(sahne, "opt", "nevo", GIRDI)
        self.assertEqual(exec_satiri(girdi), ["Exec=/opt/nevo/bin/nevo %u"])
        # A staged install leaves the desktop database to the package's own scripts.
        self.assertFalse(os.path.exists(os.path.join(os.path.dirname(girdi), "mimeinfo.cache")))

    def test_bosluklu_onek_tirnak_icinde_yazilir(self):
        onek = os.path.join(self.kok, "iki kelime")
        kur(onek)
        self.assertEqual(exec_satiri(os.path.join(onek, GIRDI)),
                         ['Exec="%s" %%u' % os.path.join(onek, "bin", "nevo")])

    def test_girdi_denetimden_uyarisiz_ve_ipucusuz_gecer(self):
        onek = os.path.join(self.kok, "ev", ".local")
        kur(onek)
        r = subprocess.run(["desktop-file-validate", os.path.join(onek, GIRDI)],
                           capture_output=True, text=True)
        self.assertEqual((r.returncode, r.stdout + r.stderr), (0, ""))

    def test_kurulum_masaustu_veritabanini_tazeler_gio_bagla_acar(self):
        onek = os.path.join(self.kok, "ev", ".local")
        kur(onek)
        uygulamalar = os.path.join(onek, "share", "applications")
        with open(os.path.join(uygulamalar, "mimeinfo.cache"), encoding="utf-8") as f:
            self.assertIn("x-scheme-handler/nevo=app.nevo.Nevo.desktop;", f.read())
        # The program is not on PATH: GIO still offers the entry for nevo:// links.
        ortam = dict(os.environ, XDG_DATA_HOME=os.path.join(onek, "share"),
                     XDG_DATA_DIRS=os.path.join(self.kok, "yok"), PATH="/usr/bin:/bin",
                     XDG_CONFIG_HOME=os.path.join(self.kok, "ayar"))
        r = subprocess.run(["gio", "mime", "x-scheme-handler/nevo"], capture_output=True,
                           text=True, env=ortam)
        self.assertIn("app.nevo.Nevo.desktop", r.stdout)


    def test_calisma_ortami_bagi_onekte_mutlak_usr_altinda_goreli(self):
        node = os.path.realpath(shutil.which("node"))
        onek = os.path.join(self.kok, "ev", ".local")
        kur(onek)
        bag = os.path.join(onek, "share", "nevo", "node")
        self.assertTrue(os.path.isabs(os.readlink(bag)), os.readlink(bag))
        self.assertEqual(os.path.realpath(bag), node)
        # Under /usr (as the package installs it) the link is relative, and still leads to
        # the runtime once in place.
        sahne = os.path.join(self.kok, "sahne")
        kur("/usr", DESTDIR=sahne)
        bag = os.readlink(os.path.join(sahne, "usr", "share", "nevo", "node"))
        self.assertEqual(bag, os.path.relpath(shutil.which("node"), "/usr/share/nevo"))
        self.assertEqual(os.path.realpath(os.path.join("/usr/share/nevo", bag)), node)


if __name__ == "__main__":
    unittest.main(verbosity=2)
