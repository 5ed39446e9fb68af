"""The page follows the desktop's light and dark style: the desktop portal's colour scheme
is read at launch and followed live, and without a portal or with no preference the
toolkit's own setting decides, as it always did. A stand-in portal on the test's session bus
answers the read and announces the changes."""
import dbus

import ortam
from ortam import KabukTesti, bekle

PORTAL = "org.freedesktop.portal.Desktop"
YOL = "/org/freedesktop/portal/desktop"
AYARLAR = "org.freedesktop.portal.Settings"
GORUNUM = "org.freedesktop.appearance"


class RenkTesti(KabukTesti):
    def portal(self, deger):
        """A stand-in settings portal whose colour scheme reads `deger`; its `Read` wraps the
        value in one variant more, as the desktop's portal does."""
        mock = self.masaustu.sahte_servis(PORTAL, YOL, AYARLAR)
        mock.AddProperties(AYARLAR, {"version": dbus.UInt32(1)})
        mock.AddMethod(AYARLAR, "Read", "ss", "v",
                       "ret = dbus.UInt32(%d, variant_level=2) if args == "
                       "['org.freedesktop.appearance', 'color-scheme'] else None" % deger)
        return mock


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


class GtkAyarliRenkSemasi(RenkTesti):
    gtk_ayarlari = {"gtk-application-prefer-dark-theme": "true"}

    def test_portal_yokken_gtk_ayari_gecerli(self):
        self.assertTrue(self.acilis()["koyu"])

    def test_tercihsiz_portalde_gtk_ayari_gecerli_ve_geri_gelir(self):
        mock = self.portal(0)
        self.assertTrue(self.acilis()["koyu"])
        self.assertFalse(self.degisim(mock, 2)["koyu"])
        self.assertTrue(self.degisim(mock, 0)["koyu"])


if __name__ == "__main__":
    ortam.calistir()
