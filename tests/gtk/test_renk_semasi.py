"""The page follows the desktop's light and dark style: the desktop portal's colour scheme
is read at launch and followed live, and without a portal or with no preference the
toolkit's own setting decides, as it always did. The shortcut recorder follows the same
choice; the offline page keeps its own colours. A stand-in portal on the test's session bus
answers the read and announces the changes."""
import os
import re
import socket

import dbus

import ortam
from ortam import KabukTesti, KopruTesti, bekle

PORTAL = "org.freedesktop.portal.Desktop"
YOL = "/org/freedesktop/portal/desktop"
AYARLAR = "org.freedesktop.portal.Settings"
GORUNUM = "org.freedesktop.appearance"
SABLON = os.path.join(os.path.dirname(os.path.abspath(__file__)), "ayarlar_portali.py")


class RenkTesti(KabukTesti):
    def portal(self, deger):
        """A stand-in settings portal whose colour scheme reads `deger`."""
        return self.masaustu.sahte_servis(PORTAL, YOL, sablon=SABLON,
                                          parametreler={"renk": deger})


    def renkler(self):
        return [o for o in list(self.sunucu.olaylar) if o["tur"] == "renk"]

    def acilis(self):
        self.kabuk("/renk.html")
        return self.olay(lambda o: o["tur"] == "renk", neden="sayfanın renk şeması")

    def degisim(self, mock, deger):
        """Has the portal announce the colour scheme `deger`; the page's next change."""
        onceki = len(self.renkler())
        mock.EmitSignal(AYARLAR, "SettingChanged", "ssv",
                        [GORUNUM, "color-scheme", dbus.UInt32(deger, variant_level=1)])
        bekle(lambda: len(self.renkler()) > onceki, neden="sayfanın change olayı")
        return self.renkler()[onceki]


class PortalRenkSemasi(RenkTesti):
    def test_sayfa_masaustunun_koyu_secimiyle_acilir_ve_degisimini_canli_izler(self):
        mock = self.portal(1)
        self.assertEqual(self.acilis(), {"tur": "renk", "koyu": True, "neden": "acilis"})
        self.assertFalse(self.degisim(mock, 2)["koyu"])
        self.assertEqual(self.degisim(mock, 1), {"tur": "renk", "koyu": True,
                                                 "neden": "degisti"})
        # No preference: the toolkit's own setting, light here.
        self.assertFalse(self.degisim(mock, 0)["koyu"])
        self.assertEqual(len(self.renkler()), 4)

    def test_yeniden_baslayan_portalin_secimi_okunur(self):
        self.portal(1)
        portal = self.masaustu.surecler[-1]
        self.assertTrue(self.acilis()["koyu"])
        portal.terminate()
        portal.wait()
        hat = dbus.bus.BusConnection(self.masaustu.ortam["DBUS_SESSION_BUS_ADDRESS"])
        self.addCleanup(hat.close)
        bekle(lambda: not hat.name_has_owner(PORTAL), neden="portal gitti")
        # The portal that comes back states light: the shell reads it as it appears.
        onceki = len(self.renkler())
        self.portal(2)
        bekle(lambda: len(self.renkler()) > onceki, neden="sayfanın change olayı")
        self.assertEqual(self.renkler()[onceki], {"tur": "renk", "koyu": False,
                                                  "neden": "degisti"})


    def test_cevrimdisi_sayfa_koyu_secimde_kendi_renklerini_korur(self):
        self.portal(1)
        kapali = socket.socket()
        kapali.bind(("127.0.0.1", 0))
        port = kapali.getsockname()[1]
        kapali.close()  # nothing listens there: the load fails at once
        k = self.kabuk(adres="http://127.0.0.1:%d/" % port)
        bekle(k.cevrimdisi_sayfa_var, neden="çevrimdışı sayfa kendi renkleriyle")


class GtkAyarliRenkSemasi(RenkTesti):
    gtk_ayarlari = {"gtk-application-prefer-dark-theme": "true"}

    def test_portal_yokken_gtk_ayari_gecerli(self):
        self.assertTrue(self.acilis()["koyu"])

    def test_tercihsiz_portalde_gtk_ayari_gecerli_ve_geri_gelir(self):
        mock = self.portal(0)
        self.assertTrue(self.acilis()["koyu"])
        self.assertFalse(self.degisim(mock, 2)["koyu"])
        self.assertTrue(self.degisim(mock, 0)["koyu"])


class KaydediciRenkSemasi(RenkTesti, KopruTesti):
    def zemin(self, levha):
        """The colour of the recorder's own background, near its bottom left corner, taken
        from the window itself."""
        cikti = self.masaustu.komut(["import", "-window", levha, "-gravity", "SouthWest",
                                     "-crop", "1x1+6+6", "-depth", "8", "txt:-"])
        m = re.search(r"\((\d+),(\d+),(\d+)", cikti.splitlines()[-1])
        return tuple(int(v) for v in m.groups())

    def test_kisayol_kaydedici_masaustunun_secimini_izler(self):
        mock = self.portal(1)
        self.kopru()
        self.gonder({"tur": "masaustu", "istek": 1, "eylem": "kisayol-kaydet"})
        levha = bekle(lambda: self.masaustu.komut(
            ["xdotool", "search", "--onlyvisible", "--name", "^Kısayol$"], hata_yok=True).split(),
            neden="kaydedici")[0]
        # GTK's dark style paints the dialog grey, not black (a window not yet painted).
        bekle(lambda: ortam.yakin(self.zemin(levha), (53, 53, 53), 12), neden="kaydedici koyu")
        mock.EmitSignal(AYARLAR, "SettingChanged", "ssv",
                        [GORUNUM, "color-scheme", dbus.UInt32(2, variant_level=1)])
        bekle(lambda: min(self.zemin(levha)) > 200, neden="kaydedici açık")


if __name__ == "__main__":
    ortam.calistir()
