"""Lifecycle and menu on Linux: closing hides, a second launch reopens, quitting runs the
quit sequence, the menu's keys."""
import signal

import ortam
from ortam import KabukTesti, bekle


class Yasam(KabukTesti):
    def hazir(self):
        k = self.kabuk("/")
        k.sayfa_gorunur()
        return k

    def test_ctrl_w_gizler_ikinci_nevo_ayni_pencereyi_getirir(self):
        k = self.hazir()
        pencere = k.pencere
        k.tus("ctrl+w")
        bekle(lambda: not k.gorunur(), neden="gizlendi")
        ortam.calistir_ve_denetle(self.masaustu, [ortam.NEVO],
                                  {"NEVO_ADRES": self.sunucu.adres + "/"})
        bekle(k.gorunur, neden="yeniden göründü")
        # The second launch reached the first: it had gone on running.
        self.assertIsNone(k.surec.poll(), "uygulama çalışmaya devam eder")
        self.assertEqual(k.pencere_bul(), pencere)

    def test_kapat_dugmesi_gizler(self):
        k = self.hazir()
        k.tikla(880 - 19, 15)  # the right-most button of "menu:minimize,maximize,close"
        bekle(lambda: not k.gorunur(), neden="gizlendi")
        self.assertIsNone(k.surec.poll())

    def test_ctrl_q_cikis_yolundan_cikar(self):
        k = self.hazir()
        k.tus("ctrl+q")
        self.assertEqual(k.surec.wait(20), 0)

    def test_sigterm_ve_sigint_cikis_yolundan_cikar(self):
        for isaret in (signal.SIGTERM, signal.SIGINT):
            k = self.hazir()
            k.surec.send_signal(isaret)
            self.assertEqual(k.surec.wait(20), 0, isaret)

    def test_ctrl_r_sayfayi_yeniler(self):
        k = self.hazir()
        self.olay(lambda o: o["tur"] == "yuklendi")
        self.sunucu.olaylar.clear()
        k.tus("ctrl+r")
        self.olay(lambda o: o["tur"] == "yuklendi")

    def test_ctrl_f_giris_kipinde_tam_ekrana_gecmez_ana_kipte_gecer(self):
        k = self.hazir()
        k.tus("ctrl+f")
        k.tikla(210, 225)
        bekle(k.boyutlanabilir, neden="ana kip")
        # The click's effect came after the key's would have.
        self.assertNotIn("FULLSCREEN", k.durum())
        k.tus("ctrl+f")
        bekle(lambda: "FULLSCREEN" in k.durum(), neden="tam ekran")


if __name__ == "__main__":
    ortam.calistir()
