"""The window buttons the strip carries never cover the page's top bar: with the buttons on
the right the bar's right end makes room for them, at every width."""
import ortam
from ortam import KabukTesti, bekle, yakin

KONTROL_RENGI = (31, 143, 58)  # the fixture's top-bar controls: solid, without text
GENISLIKLER = (901, 1080, 1400)


class UstCubukTesti(KabukTesti):
    def olcu_ver(self, k, en):
        self.sunucu.olaylar.clear()
        self.masaustu.xdotool("windowsize", k.pencere, en, 700)
        return self.olay(lambda o: o["tur"] == "boyut" and o["w"] == str(en), neden=str(en))

    def kontrol_acik(self, k, kutu, ad, en):
        """Every pixel of the control shows the control, and a click on it reaches the page."""
        sol, ust, sag, alt = (int(v) for v in kutu.split(","))

        def ortulen():
            renkler = k.renkler(sol, ust, sag - sol, alt - ust)
            return [r for r in renkler if not yakin(r, KONTROL_RENGI, 10)]
        # The window repaints after a resize; a control under a button never clears.
        try:
            bekle(lambda: not ortulen(), 5, aralik=0.2)
        except AssertionError:
            self.fail("%s, %d piksel: %d noktası örtülü" % (ad, en, len(ortulen())))
        self.sunucu.olaylar.clear()
        k.tikla((sol + sag) // 2, (ust + alt) // 2)
        o = self.olay(lambda o: o["tur"] == "fare", neden="%s tıklaması, %d" % (ad, en))
        self.assertEqual(o["hedef"], ad, en)

    def her_genislikte_kontroller_acik(self):
        k = self.kabuk("/ust_cubuk.html")
        self.olay(lambda o: o["tur"] == "yuklendi")
        bekle(lambda: k.boyutlanabilir(), neden="ana kip")
        k.sayfa_gorunur()
        for en in GENISLIKLER:
            o = self.olcu_ver(k, en)
            bekle(lambda: k.geometri()[2] == en, neden="pencere %d" % en)
            for ad in ("menu", "cikis"):
                self.kontrol_acik(k, o[ad], ad, en)
        return k


class DugmelerSagda(UstCubukTesti):
    gtk_ayarlari = {"gtk-decoration-layout": "menu:minimize,maximize,close"}

    def test_sag_uctaki_kontrol_her_genislikte_acik_ve_tiklanir(self):
        self.her_genislikte_kontroller_acik()


class DugmelerSolda(UstCubukTesti):
    gtk_ayarlari = {"gtk-decoration-layout": "close,minimize,maximize:"}

    def test_iki_uctaki_kontrol_her_genislikte_acik_ve_tiklanir(self):
        self.her_genislikte_kontroller_acik()


if __name__ == "__main__":
    ortam.calistir()
