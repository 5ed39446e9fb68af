"""The web process on Linux: a killed one comes back by itself under the curtain, the
third killed within a minute leaves the offline page and Ctrl+R loads the address that was
showing; a page that stops responding is restarted by Ctrl+R, without the offline page,
and Ctrl+Q still quits."""
import os
import signal

import ortam
from ortam import PERDE_RENGI, KabukTesti, bekle, yakin

KILIT = (210, 225)  # the fixture's button that never returns
ORTA_ALT = (440, 700)  # page area, clear of the buttons


def web_surecleri(k):
    def adi(pid):
        try:
            with open("/proc/%d/comm" % pid) as f:
                return f.read().strip()
        except OSError:
            return ""
    return [p for p in ortam.torunlar(k.surec.pid) if adi(p).startswith("WebKitWebProces")]


class WebSureci(KabukTesti):
    def yuklendi(self, adres_yolu=None, haric=()):
        """The id of a page load that reported itself (other than those in `haric`)."""
        return self.olay(lambda o: o["tur"] == "yuklendi" and o["kimlik"] not in haric
                         and (adres_yolu is None or o.get("yol", adres_yolu) == adres_yolu),
                         neden="sayfa yüklendi")["kimlik"]

    def yuklenmeler(self):
        return sum(o["tur"] == "yuklendi" for o in list(self.sunucu.olaylar))

    def oldur(self, k, olenler):
        """Kills the web processes that show the page now (not those killed before)."""
        surecler = bekle(lambda: [p for p in web_surecleri(k) if p not in olenler],
                         neden="web süreci")
        for pid in surecler:
            os.kill(pid, signal.SIGKILL)
        olenler.update(surecler)

    def test_oldurulen_web_sureci_perde_altinda_kendiliginden_geri_gelir(self):
        k = self.kabuk("/?gecikme=1500")
        self.olay(lambda o: o["tur"] == "yuklendi")
        k.sayfa_gorunur()
        self.oldur(k, set())
        bekle(lambda: yakin(k.renk(*ORTA_ALT), PERDE_RENGI), neden="perde yeniden örter")
        bekle(lambda: self.yuklenmeler() == 2, 30, neden="sayfa kendiliğinden gelir")
        k.sayfa_gorunur()
        self.assertFalse(k.cevrimdisi_sayfa_var())
        k.yasiyor_mu()

    def test_dakikada_ucuncu_olen_surec_cevrimdisi_sayfa_ctrl_r_adresi_yukler(self):
        k = self.kabuk("/tuslar.html")
        gorulen = {self.yuklendi()}
        k.sayfa_gorunur()
        olenler = set()
        for _ in range(2):
            self.oldur(k, olenler)
            gorulen.add(self.yuklendi(haric=gorulen))
            k.sayfa_gorunur()
        self.oldur(k, olenler)
        bekle(k.cevrimdisi_sayfa_var, neden="çevrimdışı sayfa")
        k.tus("ctrl+r")
        self.yuklendi(haric=gorulen)
        k.sayfa_gorunur()
        k.yasiyor_mu()

    def kilitle(self):
        """A shell whose page runs a script that never returns."""
        k = self.kabuk("/tuslar.html")
        ilk = self.yuklendi()
        k.sayfa_gorunur()
        k.tikla(*KILIT)
        self.olay(lambda o: o["tur"] == "kilit" and o["kimlik"] == ilk, neden="kilit")
        return k, ilk

    def test_yanit_vermeyen_sayfa_tek_ctrl_r_ile_yeniden_yuklenir(self):
        k, ilk = self.kilitle()
        k.tus("ctrl+r")
        # Once the engine reports the page unresponsive, at the latest.
        self.yuklendi(haric={ilk})
        k.sayfa_gorunur()
        self.assertFalse(k.cevrimdisi_sayfa_var())
        k.yasiyor_mu()

    def test_sayfanin_tuttugu_tus_sayfa_kilitlenince_calismaz(self):
        k = self.kabuk("/tuslar.html?kendi=f")
        ilk = self.yuklendi()
        k.sayfa_gorunur()
        k.tus("ctrl+f")
        self.olay(lambda o: o["tur"] == "tus" and o["tuttu"] == "true", neden="sayfa tuttu")
        k.tikla(*KILIT)
        self.olay(lambda o: o["tur"] == "kilit", neden="kilit")
        k.tus("ctrl+r")
        self.yuklendi(haric={ilk})
        k.sayfa_gorunur()
        self.assertNotIn("_NET_WM_STATE_FULLSCREEN", k.durum())

    def test_yanit_vermeyen_sayfada_tek_ctrl_q_cikar(self):
        k, _ = self.kilitle()
        k.tus("ctrl+q")
        self.assertEqual(k.surec.wait(20), 0)


if __name__ == "__main__":
    ortam.calistir()
