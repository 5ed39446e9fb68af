"""Keys on Linux: the page sees the menu's keys first; a key it handles stays with it, a
key it leaves alone runs the menu's command."""
import ortam
from ortam import KabukTesti, bekle

TAM_EKRAN = "_NET_WM_STATE_FULLSCREEN"


class Tuslar(KabukTesti):
    def sayfa(self, yol):
        k = self.kabuk(yol)
        self.olay(lambda o: o["tur"] == "yuklendi", neden="sayfa yüklendi")
        k.sayfa_gorunur()
        return k

    def tus_olayi(self, tus):
        return self.olay(lambda o: o["tur"] == "tus" and o["tus"] == tus, neden="tuş " + tus)

    def test_sayfanin_tuttugu_ctrl_f_sayfada_kalir(self):
        k = self.sayfa("/tuslar.html?kendi=f")
        k.tus("ctrl+f")
        self.assertEqual(self.tus_olayi("f")["tuttu"], "true")
        # The page kept it: the menu's full screen never comes, not even by the time a
        # later key has reached the page.
        k.tus("a")
        self.tus_olayi("a")
        self.assertNotIn(TAM_EKRAN, k.durum())

    def test_sayfanin_biraktigi_ctrl_f_menuyu_calistirir(self):
        k = self.sayfa("/tuslar.html")
        k.tus("ctrl+f")
        self.assertEqual(self.tus_olayi("f")["tuttu"], "false")
        bekle(lambda: TAM_EKRAN in k.durum(), neden="tam ekran")

    def test_menunun_aldigi_tustan_sonra_yazi_sayfaya_gider(self):
        k = self.sayfa("/tuslar.html")
        k.tus("ctrl+f")
        bekle(lambda: TAM_EKRAN in k.durum(), neden="tam ekran")
        k.tus("a")
        self.assertEqual(self.tus_olayi("a")["ctrl"], "false")
        k.tus("ctrl+f")
        bekle(lambda: TAM_EKRAN not in k.durum(), neden="tam ekrandan çıkış")


if __name__ == "__main__":
    ortam.calistir()
