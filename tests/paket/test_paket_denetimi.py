"""The package file itself: what it holds, what it depends on, and that Debian's checkers
(lintian, appstreamcli, desktop-file-validate) find nothing to say."""
import os
import re
import shutil
import subprocess
import tempfile
import unittest

import paket

KIMLIK = "app.nevo.Nevo"
OLCULER = (16, 24, 32, 48, 64, 128, 256, 512)


class PaketDosyasi(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.deb = paket.deb()
        cls.kok = tempfile.mkdtemp(prefix="nevo-paket-")
        paket.calistir(["dpkg-deb", "--extract", cls.deb, cls.kok])

    @classmethod
    def tearDownClass(cls):
        shutil.rmtree(cls.kok, ignore_errors=True)

    def yol(self, goreli):
        return os.path.join(self.kok, goreli.lstrip("/"))

    def test_dosya_adi_surum_ve_mimari_tasir(self):
        surum = paket.alan(self.deb, "Version")
        mimari = paket.alan(self.deb, "Architecture")
        self.assertEqual(os.path.basename(self.deb), "nevo_%s_%s.deb" % (surum, mimari))
        self.assertEqual(surum, os.environ["NEVO_SURUM"])

    def test_program_kaynaklar_girdi_simgeler_bilgi_ve_kilavuz_yerinde(self):
        for goreli in ("/usr/bin/nevo", "/usr/share/nevo/AppIcon.svg",
                       "/usr/share/nevo/ajan/ajan.mjs",
                       "/usr/share/applications/%s.desktop" % KIMLIK,
                       "/usr/share/icons/hicolor/scalable/apps/%s.svg" % KIMLIK,
                       "/usr/share/metainfo/%s.metainfo.xml" % KIMLIK,
                       "/usr/share/man/man1/nevo.1.gz", "/usr/share/doc/nevo/copyright",
                       "/usr/share/doc/nevo/changelog.gz"):
            self.assertTrue(os.path.isfile(self.yol(goreli)), goreli)
        self.assertTrue(os.access(self.yol("/usr/bin/nevo"), os.X_OK))
        # The runtime link is relative, and leads to the system's runtime once installed.
        bag = os.readlink(self.yol("/usr/share/nevo/node"))
        self.assertFalse(os.path.isabs(bag), bag)
        self.assertEqual(os.path.normpath(os.path.join("/usr/share/nevo", bag)),
                         os.environ["NEVO_NODE"])

    def test_simgeler_her_olcude_o_olcude_cizilmis(self):
        for olcu in OLCULER:
            png = self.yol("/usr/share/icons/hicolor/%dx%d/apps/%s.png" % (olcu, olcu, KIMLIK))
            cikti = paket.calistir(["identify", "-format", "%m %w %h", png])
            self.assertEqual(cikti, "PNG %d %d" % (olcu, olcu))

    def test_girdi_mutlak_program_yolu_ve_nevo_semasi(self):
        with open(self.yol("/usr/share/applications/%s.desktop" % KIMLIK),
                  encoding="utf-8") as f:
            girdi = f.read().splitlines()
        self.assertIn("Exec=/usr/bin/nevo %u", girdi)
        self.assertIn("MimeType=x-scheme-handler/nevo;", girdi)
        for onek in ("Comment=", "Comment[tr]=", "Keywords=", "Keywords[tr]="):
            self.assertTrue([s for s in girdi if s.startswith(onek)], onek)

    def test_bagimliliklar_ikilinin_kutuphanelerinden_ve_oneriler(self):
        bagimliliklar = paket.alan(self.deb, "Depends")
        for ad in ("libgtk-3-0", "libwebkit2gtk-4.1-0", "libc6", "liburiparser1", "nodejs"):
            self.assertIn(ad, bagimliliklar)
        oneriler = paket.alan(self.deb, "Recommends")
        for ad in ("hunspell-tr", "gstreamer1.0-plugins-good", "xdg-desktop-portal"):
            self.assertIn(ad, oneriler)

    def test_lintian_hatasiz_uyarisiz(self):
        r = subprocess.run(["lintian", "--fail-on", "error,warning", "--display-level",
                            ">=warning", "--tag-display-limit", "0", self.deb],
                           capture_output=True, text=True)
        # Run as root (as in CI), lintian says so on its error output; nothing else may show.
        hatalar = [s for s in r.stderr.splitlines()
                   if s != "running with root privileges is not recommended!"]
        self.assertEqual((r.returncode, r.stdout, hatalar), (0, "", []))

    def test_appstream_bilgisi_gecerli(self):
        r = subprocess.run(["appstreamcli", "validate", "--no-net", "--no-color",
                            self.yol("/usr/share/metainfo/%s.metainfo.xml" % KIMLIK)],
                           capture_output=True, text=True)
        self.assertEqual(r.returncode, 0, r.stdout + r.stderr)

    def test_masaustu_girdisi_denetimde_sessiz(self):
        r = subprocess.run(["desktop-file-validate",
                            self.yol("/usr/share/applications/%s.desktop" % KIMLIK)],
                           capture_output=True, text=True)
        self.assertEqual((r.returncode, r.stdout + r.stderr), (0, ""))

    def test_kilavuz_uyarisiz_bicimlenir_ve_anlatir(self):
        r = subprocess.run(["man", "--warnings", "-E", "UTF-8", "-l", "-Tutf8",
                            self.yol("/usr/share/man/man1/nevo.1.gz")],
                           capture_output=True, text=True, env=dict(os.environ, MANWIDTH="80"))
        self.assertEqual((r.returncode, r.stderr), (0, ""))
        metin = re.sub(".\b", "", r.stdout)  # bold and underline as the terminal gets them
        for parca in ("--version", "--help", "NEVO_ADRES", "tercihler.ini", "nevo://",
                      "/usr/share/nevo/"):
            self.assertIn(parca, metin)


if __name__ == "__main__":
    unittest.main(verbosity=2)
