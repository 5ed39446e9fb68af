"""The global hot key under Wayland through the desktop portal's global shortcuts: the shell
runs in weston, a stand-in portal on the private session bus answers its session and binding
requests, and the portal's Activated signal opens the quick-entry panel, whose text reaches
the page."""
import dbus

import ortam
from ortam import KopruTesti, bekle
from test_wayland import WaylandTesti

PORTAL = "org.freedesktop.portal.Desktop"
YOL = "/org/freedesktop/portal/desktop"
KISAYOLLAR = "org.freedesktop.portal.GlobalShortcuts"

# The portal answers each request on its Request object, named after the caller (the shell,
# the only client here) and the token the caller chose.
ISTEK = """
import dbus.lowlevel
ad = self.connection.get_name_owner('app.nevo.Nevo').lstrip(':').replace('.', '_')
def yanitla(self, ad, jeton, sonuclar):
    yol = '%s/request/%s/%s' % ({yol!r}, ad, jeton)
    m = dbus.lowlevel.SignalMessage(yol, 'org.freedesktop.portal.Request', 'Response')
    m.append(dbus.UInt32(0), dbus.Dictionary(sonuclar, signature='sv'), signature='ua{{sv}}')
    self.connection.send_message(m)
    return yol
"""
OTURUM_AC = ISTEK.format(yol=YOL) + """
oturum = '%s/session/%s/%s' % ({yol!r}, ad, args[0]['session_handle_token'])
self.AddObject(oturum, 'org.freedesktop.portal.Session', {{}}, [('Close', '', '', '')])
ret = yanitla(self, ad, args[0]['handle_token'], {{'session_handle': oturum}})
""".format(yol=YOL)
BAGLA = ISTEK.format(yol=YOL) + """
bos = dbus.Array([], signature='(sa{sv})')
ret = yanitla(self, ad, args[3]['handle_token'], {'shortcuts': bos})
"""


class PortalKisayolu(WaylandTesti, KopruTesti):
    def portal(self):
        mock = self.masaustu.sahte_servis(PORTAL, YOL, KISAYOLLAR)
        mock.AddProperties(KISAYOLLAR, {"version": dbus.UInt32(1)})
        mock.AddMethod(KISAYOLLAR, "CreateSession", "a{sv}", "o", OTURUM_AC)
        mock.AddMethod(KISAYOLLAR, "BindShortcuts", "oa(sa{sv})sa{sv}", "o", BAGLA)
        return mock

    def wayland_kopru(self):
        self.wayland_kabuk("/kopru.html")
        self.olay(lambda o: o["tur"] == "hazir", neden="köprü sayfası hazır")

    def baglamalar(self, mock):
        return [c[2] for c in mock.GetCalls() if c[1] == "BindShortcuts"]

    def test_portalin_etkinlestirdigi_kisayol_paneli_acar(self):
        mock = self.portal()
        self.masaustu.tercihler(["nevo.kisayol.kod=40", "nevo.kisayol.mod=6144",
                                 "nevo.kisayol.ad=Ctrl+Alt+K"])
        self.wayland_kopru()
        oturum, kisayollar, _, _ = bekle(lambda: (self.baglamalar(mock) or [None])[0],
                                         neden="kısayol bağlandı")
        self.assertEqual([(str(k), str(o["preferred_trigger"])) for k, o in kisayollar],
                         [("hizli-giris", "CTRL+ALT+k")])
        mock.EmitSignal(KISAYOLLAR, "Activated", "osta{sv}",
                        [oturum, "hizli-giris", dbus.UInt64(0), dbus.Dictionary({}, "sv")])
        # The panel takes the keyboard a moment after it maps: the first letters may land
        # before it does, so the page receives the end of what was typed.
        yazilan = "Merhaba dunya"
        self.masaustu.xdotool("type", "--delay", "120", yazilan)
        self.masaustu.xdotool("key", "Return")
        o = self.olay(lambda o: o["tur"] == "hizli", neden="hızlı mesaj")
        self.assertTrue(o["metin"] and yazilan.endswith(o["metin"]), o["metin"])

        # Deleting the shortcut closes the portal session.
        self.gonder({"tur": "masaustu", "istek": 1, "eylem": "kisayol-sil"})
        self.assertIsNone(self.cevap(1)["kisayol"])
        kapat = self.masaustu.sahte_nesne(PORTAL, str(oturum))
        bekle(lambda: [c for c in kapat.GetCalls() if c[1] == "Close"], neden="oturum kapandı")

if __name__ == "__main__":
    ortam.calistir()
