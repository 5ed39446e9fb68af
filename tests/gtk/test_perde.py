"""The loading curtain on Linux: it covers the window, the strip too, until text shows."""
import time

import ortam
from ortam import PERDE_RENGI, SAYFA_RENGI, KabukTesti, bekle, yakin

ORTA_ALT = (440, 700)   # page area inside both window sizes, clear of the buttons
SERIT_ICI = (440, 14)   # inside the title strip band
SIMGE = (440, 410 - 18)  # the icon's centre: 18 above the centre of the 880 x 820 window


class Perde(KabukTesti):
    def test_perde_metin_gorunene_kadar_her_seyi_ortup_sonra_kalkar(self):
        k = self.kabuk("/?gecikme=3000")
        bekle(lambda: yakin(k.renk(*ORTA_ALT), PERDE_RENGI), 5, neden="perde")
        self.assertTrue(yakin(k.renk(*SERIT_ICI), PERDE_RENGI), "şerit de örtülü")
        self.assertFalse(yakin(k.renk(*SIMGE), PERDE_RENGI), "simge merkezin 18 üstünde")
        self.assertIsNone(self.sunucu.olay_bekle(lambda o: o["tur"] == "yuklendi", 1.0))
        self.assertTrue(yakin(k.renk(*ORTA_ALT), PERDE_RENGI), "metin yokken perde durur")
        self.olay(lambda o: o["tur"] == "yuklendi")
        bekle(lambda: yakin(k.renk(*ORTA_ALT), SAYFA_RENGI), 5, neden="perde kalkar")
        self.assertTrue(yakin(k.renk(*SERIT_ICI), SAYFA_RENGI))

    def test_yalniz_bosluklu_govde_150_denemeden_sonra_perdesini_kaybeder(self):
        baslangic = time.monotonic()
        k = self.kabuk("/bos.html")
        bekle(lambda: yakin(k.renk(*ORTA_ALT), PERDE_RENGI), 5, neden="perde")
        time.sleep(8)
        self.assertTrue(yakin(k.renk(*ORTA_ALT), PERDE_RENGI), "8 sn sonra hâlâ perde")
        bekle(lambda: yakin(k.renk(*ORTA_ALT), SAYFA_RENGI), 40, aralik=0.25,
              neden="150 denemeden sonra kalkar")
        self.assertGreater(time.monotonic() - baslangic, 15.0)


if __name__ == "__main__":
    ortam.calistir()
