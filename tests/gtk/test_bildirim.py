"""Notifications on Linux: they reach a mocked notification service
(python3-dbusmock's notification_daemon); a click brings the window forward and sends
nothing to the page."""
import ortam
from ortam import KopruTesti, bekle


class Bildirim(KopruTesti):
    def servis(self):
        return self.masaustu.sahte_servis("org.freedesktop.Notifications",
                                          sablon="notification_daemon")

    def bildirimler(self, mock):
        return [c[2] for c in mock.GetCalls() if c[1] == "Notify"]

    def durumlar(self):
        return [o["kelime"] for o in self.olaylar("bildirim-durumu")]

    def test_servis_varken_verildi_ayni_metinli_iki_bildirim_ikisi_de_gider(self):
        self.kurulu_uygulama()
        mock = self.servis()
        self.kopru()
        self.gonder({"tur": "bildirim-durum"})
        self.gonder({"tur": "bildirim-izin-iste"})
        bekle(lambda: len(self.durumlar()) == 2, neden="iki durum")
        self.assertEqual(self.durumlar(), ["verildi", "verildi"])
        self.gonder({"tur": "bildirim", "baslik": "Bitti", "govde": "Rapor hazır 🙂"})
        self.gonder({"tur": "bildirim", "baslik": "Bitti", "govde": "Rapor hazır 🙂"})
        self.gonder({"tur": "bildirim"})
        bekle(lambda: len(self.bildirimler(mock)) == 3, neden="üç bildirim")
        b = self.bildirimler(mock)
        self.assertEqual([(str(x[3]), str(x[4])) for x in b],
                         [("Bitti", "Rapor hazır 🙂"), ("Bitti", "Rapor hazır 🙂"), ("Nevo", "")])
        self.assertEqual([int(x[1]) for x in b], [0, 0, 0], "hiçbiri öncekinin yerine geçmez")

    def test_servis_yokken_desteklenmiyor(self):
        self.kurulu_uygulama()
        self.kopru()
        self.gonder({"tur": "bildirim-izin-iste"})
        bekle(lambda: self.durumlar(), neden="durum")
        self.assertEqual(self.durumlar(), ["desteklenmiyor"])

    def test_paketsiz_uygulama_bildirim_gondermez(self):
        mock = self.servis()
        self.kopru()
        self.gonder({"tur": "bildirim", "baslik": "x"})
        self.gonder({"tur": "bildirim-durum"})
        bekle(lambda: self.durumlar(), neden="durum")
        self.assertEqual(self.durumlar(), ["desteklenmiyor"])
        self.assertEqual(self.bildirimler(mock), [])

    def test_pencere_kapaliyken_tiklama_pencereyi_getirir_sayfaya_gondermez(self):
        self.kurulu_uygulama()
        mock = self.servis()
        k = self.kopru()
        self.gonder({"tur": "bildirim", "baslik": "Tıkla"})
        bekle(lambda: self.bildirimler(mock), neden="bildirim")
        k.tus("ctrl+w")
        bekle(lambda: not k.gorunur(), neden="gizlendi")
        onceki = len(self.sunucu.olaylar)
        mock.EmitSignal("org.freedesktop.Notifications", "ActionInvoked", "us", [1, "default"])
        bekle(k.gorunur, neden="pencere geri geldi")
        self.kopru_turu(1)  # anything the click sent the page is recorded by then
        self.assertEqual([o["tur"] for o in self.sunucu.olaylar[onceki:]], ["cevap"])


if __name__ == "__main__":
    ortam.calistir()
