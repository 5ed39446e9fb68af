"""Notifications on Linux: they reach a mocked notification service
(python3-dbusmock's notification_daemon); a click brings the window forward and sends
nothing to the page."""
import os

import dbus

import ortam
from ortam import KopruTesti, bekle
from ses_sunucusu import SesSunucusu

MESAJ_SESI = "message-new-instant"


class BildirimTabani(KopruTesti):
    def servis(self):
        return self.masaustu.sahte_servis("org.freedesktop.Notifications",
                                          sablon="notification_daemon")

    def bildirimler(self, mock):
        return [c[2] for c in mock.GetCalls() if c[1] == "Notify"]


class Bildirim(BildirimTabani):
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


class BildirimSesi(BildirimTabani):
    def test_bildirim_masaustunun_yeni_mesaj_sesini_calar(self):
        ses = SesSunucusu(self.masaustu)
        self.kurulu_uygulama()
        mock = self.servis()
        self.kopru()
        self.gonder({"tur": "bildirim", "baslik": "Bitti"})
        bekle(lambda: self.bildirimler(mock), neden="bildirim")
        bekle(ses.akislar, neden="ses")
        self.assertEqual(ses.akislar(), [(MESAJ_SESI, "Bitti")])

    def test_rahatsiz_etme_acikken_ses_calmaz(self):
        ses = SesSunucusu(self.masaustu)
        self.kurulu_uygulama()
        mock = self.servis()
        mock.AddProperty("org.freedesktop.Notifications", "Inhibited", dbus.Boolean(True))
        self.kopru()
        self.gonder({"tur": "bildirim", "baslik": "Sessiz"})
        bekle(lambda: self.bildirimler(mock), neden="bildirim")
        self.masaustu.dbus_turu()  # the shell's question has reached the service before this
        dbus.Interface(mock.proxy_object, dbus.PROPERTIES_IFACE).Set(
            "org.freedesktop.Notifications", "Inhibited", dbus.Boolean(False))
        self.gonder({"tur": "bildirim", "baslik": "Sesli"})
        # Sounds play one after another, so the second one's stream proves the first one
        # would have started before it.
        bekle(ses.akislar, neden="ikinci bildirimin sesi")
        self.assertEqual(ses.akislar()[0], (MESAJ_SESI, "Sesli"))

    def test_gnome_bildirimleri_kapaliyken_ses_calmaz(self):
        ses = SesSunucusu(self.masaustu)
        self.kurulu_uygulama()
        mock = self.servis()
        self.masaustu.komut(["gsettings", "set", "org.gnome.desktop.notifications",
                             "show-banners", "false"])
        self.kopru()
        self.gonder({"tur": "bildirim", "baslik": "Sessiz"})
        bekle(lambda: self.bildirimler(mock), neden="bildirim")
        self.masaustu.komut(["gsettings", "set", "org.gnome.desktop.notifications",
                             "show-banners", "true"])
        bekle(lambda: self.masaustu.komut(["gsettings", "get", "org.gnome.desktop.notifications",
                                            "show-banners"]).strip() == "true", neden="ayar")
        self.gonder({"tur": "bildirim", "baslik": "Sesli"})
        bekle(ses.akislar, neden="ikinci bildirimin sesi")
        self.assertEqual(ses.akislar()[0], (MESAJ_SESI, "Sesli"))


class BildirimAyarlari(KopruTesti):
    def sahte_program(self, ad):
        dizin = os.path.join(self.masaustu.ev, "programlar")
        os.makedirs(dizin, exist_ok=True)
        kayit = os.path.join(self.masaustu.ev, ad + ".calisti")
        yol = os.path.join(dizin, ad)
        with open(yol, "w") as f:
            f.write('#!/bin/sh\necho "$@" > "%s.yaziliyor" && mv "%s.yaziliyor" "%s"\n'
                    % (kayit, kayit, kayit))
        os.chmod(yol, 0o755)
        return dizin, kayit

    def ayarlari_ac(self, masaustu, program):
        dizin, kayit = self.sahte_program(program)
        self.kopru(ek_ortam={"XDG_CURRENT_DESKTOP": masaustu,
                             "PATH": dizin + ":" + os.environ["PATH"]})
        self.gonder({"tur": "bildirim-ayarlari"})
        bekle(lambda: os.path.exists(kayit), neden=program)
        with open(kayit) as f:
            return f.read().strip()

    def test_xfce_bildirim_ayarlarini_acar(self):
        self.assertEqual(self.ayarlari_ac("XFCE", "xfce4-notifyd-config"), "")

    def test_cinnamon_bildirim_sayfasini_acar(self):
        self.assertEqual(self.ayarlari_ac("X-Cinnamon", "cinnamon-settings"), "notifications")


if __name__ == "__main__":
    ortam.calistir()
