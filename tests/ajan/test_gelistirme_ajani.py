"""The development agent that ships when no real agent is given: it logs its start and the
names of its environment variables, stays up until SIGTERM, and answers "eslestir CODE"."""
import json
import os
import signal
import subprocess
import unittest

BETIK = os.environ.get("NEVO_GELISTIRME_AJANI", os.path.join(
    os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__)))),
    "resources", "gelistirme-ajani", "ajan", "ajan.mjs"))
NODE = os.environ.get("NEVO_NODE", "node")
ORTAM = {"PATH": "/usr/bin:/bin", "HOME": "/ev", "KOPRU_ADRES": "wss://x"}


class GelistirmeAjani(unittest.TestCase):
    def calistir(self, *arg):
        return subprocess.run([NODE, BETIK, *arg], env=ORTAM, capture_output=True, text=True,
                              timeout=60)

    def test_eslestirme_json_metniyle_basarir(self):
        r = self.calistir("eslestir", "AB12CD")
        self.assertEqual(r.returncode, 0)
        self.assertIn("AB12CD", json.loads(r.stdout))
        self.assertEqual(r.stdout.count("\n"), 1)

    def test_hata_ile_baslayan_kod_reddedilir(self):
        r = self.calistir("eslestir", "HATA1234")
        self.assertNotEqual(r.returncode, 0)
        self.assertIn("HATA1234", json.loads(r.stderr))

    def test_baslangici_ve_ortam_adlarini_yazar_sigterm_ile_biter(self):
        s = subprocess.Popen([NODE, BETIK], env=ORTAM, stdout=subprocess.PIPE, text=True)
        try:
            satir = s.stdout.readline()  # waits for the start line
            self.assertIn("HOME KOPRU_ADRES PATH", satir)
            self.assertNotIn("/ev", satir)  # names only, not values
            self.assertIsNone(s.poll())
            s.send_signal(signal.SIGTERM)
            self.assertEqual(s.wait(20), 0)
        finally:
            if s.poll() is None:
                s.kill()
                s.wait()
            s.stdout.close()


if __name__ == "__main__":
    unittest.main(verbosity=2)
