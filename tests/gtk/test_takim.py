"""The page-side kit (web/nevo-masaustu.mjs) in the real shell: desktop requests as promises,
the page's own callbacks kept, and what a page outside the shell is told."""
import ortam
from ortam import KopruTesti

ESZAMANLI = [["durum", False], ["uyanik", True], ["durum", False], ["menu-cubugu", True],
             ["uyanik", False], ["durum", False], ["menu-cubugu", False], ["durum", False]]
# (uyanikTut, menuCubugu) each reply carries: the status after its own request.
BEKLENEN = [(False, False), (True, False), (True, False), (True, True), (False, True),
            (False, True), (False, False), (False, False)]


class Takim(KopruTesti):
    def takim(self):
        k = self.kabuk("/takim.html")
        hazir = self.olay(lambda o: o["tur"] == "hazir", neden="takım sayfası hazır")
        self.assertIn("dil", hazir)
        self.assertTrue(hazir["kabukta"], "ana görünümdeki sayfa kabukta olduğunu bilir")
        return k

    def test_es_zamanli_istekler_sirayla_kendi_cevaplarini_alir(self):
        self.takim()
        self.sunucu.komut_ekle({"esZamanli": ESZAMANLI})
        sonuc = self.olay(lambda o: o["tur"] == "es-zamanli", neden="eş zamanlı istekler")
        self.assertEqual(sonuc["sira"], list(range(len(ESZAMANLI))))
        istekler = sonuc["istekler"]
        self.assertEqual(istekler, sorted(set(istekler)), "her isteğin kendi numarası")
        self.assertEqual([(d["uyanikTut"], d["menuCubugu"]) for d in sonuc["durumlar"]],
                         BEKLENEN)
        # The page's own earlier callback received every reply too.
        for istek in istekler:
            self.olay(lambda o, i=istek: o["tur"] == "kendi-cevap" and o["istek"] == i,
                      neden="sayfanın kendi işlevine cevap %d" % istek)

    def test_sayfanin_kendi_istegi_ve_cagrisi_calismaya_devam_eder(self):
        self.takim()
        self.gonder({"tur": "masaustu", "istek": 5, "eylem": "durum"})
        self.olay(lambda o: o["tur"] == "gonderildi" and o["sonuc"] is True, neden="gönderildi")
        self.olay(lambda o: o["tur"] == "kendi-cevap" and o["istek"] == 5, neden="kendi cevap")
        self.gonder({"tur": "bildirim-durum"})
        self.olay(lambda o: o["tur"] == "kendi-bildirim" and o["kelime"] == "desteklenmiyor",
                  neden="sayfanın kendi bildirim işlevi")
        self.olay(lambda o: o["tur"] == "takim-bildirim" and o["kelime"] == "desteklenmiyor",
                  neden="takımın dinleyicisi")

    def test_gelmeyen_cevap_secilen_sureden_sonra_reddedilir(self):
        self.takim()
        self.sunucu.komut_ekle({"zamanAsimi": 400})
        sonuc = self.olay(lambda o: o["tur"] == "zaman-asimi", neden="zaman aşımı")
        self.assertEqual((sonuc.get("ad"), sonuc.get("zamanAsimi"), sonuc.get("sure")),
                         ("ZamanAsimi", True, 400), sonuc)
        self.assertGreaterEqual(sonuc["gecen"], 399)
        # The kit still answers afterwards.
        self.sunucu.komut_ekle({"esZamanli": [["durum", False]]})
        self.olay(lambda o: o["tur"] == "es-zamanli", neden="zaman aşımından sonra istek")

    def test_kabuk_disindaki_sayfa_acik_bir_sonuc_alir(self):
        self.takim()
        self.sunucu.komut_ekle({"cerceve": True})
        sonuc = self.olay(lambda o: o["tur"] == "cerceve", neden="çerçevedeki sayfa")
        self.assertNotIn("istisna", sonuc)
        self.assertFalse(sonuc["kabukta"])
        self.assertTrue(sonuc["ayni"])
        self.assertEqual(sonuc["cevap"]["kabukta"], False)
        self.assertIn("Masaüstü kabuğunda değil", sonuc["cevap"]["neden"])
        self.assertFalse(sonuc["gonderildi"])


if __name__ == "__main__":
    ortam.calistir()
