"""The microphone and camera for the application only: its own top page is given a device,
a frame of another origin inside it is refused, and `navigator.permissions.query` tells the
page what the shell decides. The device is the engine's own silent stand-in, switched on by
NEVO_TEST_SAHTE_AYGITLAR."""
import ortam
from ortam import KabukTesti, Sunucu

SAHTE_AYGITLAR = {"NEVO_TEST_SAHTE_AYGITLAR": "1"}


class Medya(KabukTesti):
    def yakalama(self, kaynak):
        return self.olay(lambda o: o["tur"] == "yakalama" and o["kaynak"] == kaynak,
                         neden="yakalama sonucu: " + kaynak)

    def test_ust_sayfa_mikrofonu_alir_baska_kokenli_cerceve_reddedilir(self):
        baska = Sunucu(ortam.FIKSTURLER).arka_planda()
        self.addCleanup(baska.server_close)
        self.addCleanup(baska.shutdown)
        # Another port of the application's host: another origin, which the view keeps.
        self.kabuk("/medya.html?cerceve=" + baska.adres, ek_ortam=SAHTE_AYGITLAR)
        ust = self.yakalama("ust")
        self.assertEqual((ust["sonuc"], ust.get("izler")), ("verildi", 1), ust)
        gomulu = self.yakalama("cerceve")
        self.assertEqual((gomulu["sonuc"], gomulu.get("ad")), ("hata", "NotAllowedError"))

    def test_reddedilen_cerceveden_sonra_ust_sayfa_mikrofonu_alir(self):
        baska = Sunucu(ortam.FIKSTURLER).arka_planda()
        self.addCleanup(baska.server_close)
        self.addCleanup(baska.shutdown)
        self.kabuk("/medya.html?once&cerceve=" + baska.adres, ek_ortam=SAHTE_AYGITLAR)
        gomulu = self.yakalama("cerceve")
        self.assertEqual((gomulu["sonuc"], gomulu.get("ad")), ("hata", "NotAllowedError"))
        ust = self.yakalama("ust")
        self.assertEqual((ust["sonuc"], ust.get("izler")), ("verildi", 1), ust)

    def test_izin_sorgusu_kabugun_kararini_soyler(self):
        self.kabuk("/medya.html", ek_ortam=SAHTE_AYGITLAR)
        durumlar = self.olay(lambda o: o["tur"] == "izinler", neden="izin durumları")["durumlar"]
        # The engine tells a page "prompt" for every refusal: it never says "denied",
        # whatever the shell answers.
        self.assertEqual(durumlar, {"microphone": "granted", "camera": "granted",
                                    "geolocation": "prompt", "notifications": "prompt"})
        self.assertEqual(self.yakalama("ust")["sonuc"], "verildi")


if __name__ == "__main__":
    ortam.calistir()
