"""Staying signed in on Linux: lasting cookies (the page's and the server's HttpOnly one)
and local storage outlive a quit and a kill of the shell, session cookies do not; the
website data lives in the shell's data directory, moved there once from where the engine
kept it before; a data directory that cannot be written leaves the shell working with
storage in memory."""
import os

import ortam
from ortam import KabukTesti


def cerezler(olay):
    """The cookies a beacon's request carried, name to value."""
    return dict(c.split("=", 1) for c in olay.get("cerez", "").split("; ") if "=" in c)


class Oturum(KabukTesti):
    def setUp(self):
        super().setUp()
        self.veri = os.path.join(self.masaustu.ortam["XDG_DATA_HOME"], "Nevo")

    def giris_yap(self):
        """A shell on the page that signs in; returns once the engine sent every cookie."""
        k = self.kabuk("/cerez.html?kur")
        o = self.olay(lambda o: o["tur"] == "kuruldu", neden="çerezler kuruldu")
        self.assertEqual(cerezler(o), {"betik": "kalici", "betik_oturum": "gecici",
                                       "oturum": "kalici", "sekme": "gecici"})
        k.sayfa_gorunur()
        return k

    def yeniden_ac(self):
        """A new shell on the page; the cookies and storage its first load found."""
        self.sunucu.olaylar.clear()
        k = self.kabuk("/cerez.html")
        o = self.olay(lambda o: o["tur"] == "yuklendi", neden="sayfa yüklendi")
        k.sayfa_gorunur()
        return k, o

    def kalici_olanlar_kaldi(self, o):
        self.assertEqual(cerezler(o), {"betik": "kalici", "oturum": "kalici"})
        self.assertEqual(o["sayfa"], "betik=kalici")  # the server's cookie stays HttpOnly
        self.assertEqual(o["yerel"], "kalici")

    def test_kalici_cerezler_cikistan_sonra_kalir_oturum_cerezleri_gider(self):
        self.assertEqual(self.giris_yap().bitir(), 0)
        k, o = self.yeniden_ac()
        self.kalici_olanlar_kaldi(o)
        self.assertTrue(os.path.isfile(os.path.join(self.veri, "web", "cerezler.sqlite")))
        k.yasiyor_mu()

    def test_oldurulen_kabugun_yazilmis_cerezleri_kalir(self):
        self.giris_yap().oldur()
        k, o = self.yeniden_ac()
        self.kalici_olanlar_kaldi(o)
        k.yasiyor_mu()

    def test_motorun_eski_yerindeki_veri_bir_kez_tasinir(self):
        eski = os.path.join(self.masaustu.ortam["XDG_DATA_HOME"], "nevo")
        os.makedirs(eski)
        with open(os.path.join(eski, "isaret"), "w") as f:
            f.write("önceki sürüm")
        k, _ = self.yeniden_ac()
        with open(os.path.join(self.veri, "web", "isaret")) as f:
            self.assertEqual(f.read(), "önceki sürüm")
        self.assertFalse(os.path.exists(eski))
        self.assertEqual(k.bitir(), 0)
        # Once moved, a later folder of that name (another program's) stays where it is.
        os.makedirs(eski)
        k, _ = self.yeniden_ac()
        self.assertTrue(os.path.isdir(eski))
        self.assertFalse(os.path.exists(os.path.join(self.veri, "web", "nevo")))
        k.yasiyor_mu()

    def test_yazilamayan_veri_dizininde_sayfa_bellekteki_verilerle_calisir(self):
        os.makedirs(self.veri)
        with open(os.path.join(self.veri, "web"), "w") as f:
            f.write("dizin değil")
        k = self.giris_yap()  # the cookies work for the session
        self.assertEqual(k.bitir(), 0)
        k, o = self.yeniden_ac()
        self.assertEqual(cerezler(o), {})
        self.assertEqual(o["yerel"], "")
        with open(os.path.join(self.veri, "web")) as f:
            self.assertEqual(f.read(), "dizin değil")
        k.yasiyor_mu()


if __name__ == "__main__":
    ortam.calistir()
