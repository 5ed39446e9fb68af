"""The sleep blocker on Linux: page jobs take and release one suspend inhibitor over a mocked
session bus (python3-dbusmock), in the order GNOME session manager, freedesktop power
management, desktop portal; without any of them nothing is held and nothing fails."""
import os
import signal
import subprocess
import time

import dbus

import ortam
from ortam import KopruTesti, bekle

NEDEN = "Nevo: uzun gorev suruyor"


class Uyku(KopruTesti):
    def oturum_yoneticisi(self):
        mock = self.masaustu.sahte_servis("org.gnome.SessionManager", "/org/gnome/SessionManager",
                                          "org.gnome.SessionManager")
        mock.AddMethod("", "Inhibit", "susu", "u", "ret = 42")
        mock.AddMethod("", "Uninhibit", "u", "", "")
        return mock

    def cagrilar(self, mock, ad):
        return [[a for a in c[2]] for c in mock.GetCalls() if c[1] == ad]

    def cagrilar_bekle(self, mock, ad, beklenen):
        """The bus is never waited on, so a call reaches the service a moment later."""
        bekle(lambda: self.cagrilar(mock, ad) == beklenen, neden="%s %r" % (ad, beklenen))

    def is_(self, ad, acik, istek):
        self.gonder({"tur": "masaustu-is", "is": ad, "acik": acik})
        self.kopru_turu(istek)  # the job message before it has been handled

    def cagrilar_simdi(self, mock, ad):
        """The calls `ad` that the service has had once whatever the shell sent on the bus
        until now has reached it."""
        self.masaustu.dbus_turu()
        return self.cagrilar(mock, ad)

    def uyanik(self, deger, istek):
        self.gonder({"tur": "masaustu", "istek": istek, "eylem": "uyanik", "deger": deger})
        self.cevap(istek)

    def test_isler_engeli_alir_ve_birakir(self):
        mock = self.oturum_yoneticisi()
        self.kopru()
        self.is_("a", True, 1)
        self.assertEqual(self.cagrilar_simdi(mock, "Inhibit"), [], "tercih kapalıyken alınmaz")
        self.uyanik(True, 2)
        self.cagrilar_bekle(mock, "Inhibit", [["app.nevo.Nevo", 0, NEDEN, 4]])
        self.is_("b", True, 3)
        self.is_("a", False, 4)
        self.assertEqual(len(self.cagrilar_simdi(mock, "Inhibit")), 1)
        self.assertEqual(self.cagrilar(mock, "Uninhibit"), [])
        self.is_("b", "false", 5)  # not a boolean: an end
        self.cagrilar_bekle(mock, "Uninhibit", [[42]])

    def test_tercih_kapaninca_ve_sayfa_yenilenince_birakilir(self):
        mock = self.oturum_yoneticisi()
        k = self.kopru()
        self.uyanik(True, 1)
        self.is_("a", True, 2)
        self.uyanik(False, 3)
        self.cagrilar_bekle(mock, "Uninhibit", [[42]])
        self.uyanik(True, 4)
        bekle(lambda: len(self.cagrilar(mock, "Inhibit")) == 2, neden="ikinci Inhibit")
        self.sunucu.olaylar.clear()
        k.tus("ctrl+r")
        self.olay(lambda o: o["tur"] == "hazir", neden="yeniden yüklendi")
        bekle(lambda: len(self.cagrilar(mock, "Uninhibit")) == 2, neden="yenilemede bırakıldı")

    def test_cikista_birakilir(self):
        mock = self.oturum_yoneticisi()
        k = self.kopru()
        self.uyanik(True, 1)
        self.is_("a", True, 2)
        # The service's answer comes later; a bridge round trip after it has been sent
        # lets the shell take it in before the quit.
        bekle(lambda: self.cagrilar(mock, "Inhibit"), neden="Inhibit")
        self.kopru_turu(3)
        k.surec.send_signal(signal.SIGTERM)
        self.assertEqual(k.surec.wait(20), 0)
        self.cagrilar_bekle(mock, "Uninhibit", [[42]])

    def test_oturum_yoneticisi_yoksa_guc_yonetimi(self):
        mock = self.masaustu.sahte_servis("org.freedesktop.PowerManagement",
                                          "/org/freedesktop/PowerManagement/Inhibit",
                                          "org.freedesktop.PowerManagement.Inhibit")
        mock.AddMethod("", "Inhibit", "ss", "u", "ret = 7")
        mock.AddMethod("", "UnInhibit", "u", "", "")
        self.kopru()
        self.uyanik(True, 1)
        self.is_("a", True, 2)
        self.cagrilar_bekle(mock, "Inhibit", [["app.nevo.Nevo", NEDEN]])
        self.is_("a", False, 3)
        self.cagrilar_bekle(mock, "UnInhibit", [[7]])

    def test_yalniz_portal_varsa_portal(self):
        mock = self.masaustu.sahte_servis("org.freedesktop.portal.Desktop",
                                          "/org/freedesktop/portal/desktop",
                                          "org.freedesktop.portal.Inhibit")
        istek = "/org/freedesktop/portal/desktop/request/1_1/nevo"
        mock.AddMethod("", "Inhibit", "sua{sv}", "o", "ret = '%s'" % istek)
        mock.AddObject(istek, "org.freedesktop.portal.Request", {},
                       [("Close", "", "", "")])
        self.kopru()
        self.uyanik(True, 1)
        self.is_("a", True, 2)
        bekle(lambda: self.cagrilar(mock, "Inhibit"), neden="Inhibit")
        cagri = self.cagrilar(mock, "Inhibit")
        self.assertEqual(len(cagri), 1)
        self.assertEqual(cagri[0][1], 4)
        self.assertEqual(str(cagri[0][2]["reason"]), NEDEN)
        self.is_("a", False, 3)
        nesne = self.masaustu.sahte_nesne("org.freedesktop.portal.Desktop", istek)
        bekle(lambda: [c[1] for c in nesne.GetCalls()] == ["Close"], neden="Close")

    def test_servis_yoksa_hicbir_sey_bozulmaz(self):
        k = self.kopru()
        self.uyanik(True, 1)
        self.is_("a", True, 2)
        self.is_("a", False, 3)
        # The three services are tried one after another, each when the last one's error
        # comes back: a round trip through the shell's bus connection for each.
        self.masaustu.dbus_turu(3)
        k.yasiyor_mu()

    def test_reddedilen_engel_sonraki_iste_yeniden_istenir(self):
        self.kopru()
        self.uyanik(True, 1)
        self.is_("a", True, 2)
        self.masaustu.dbus_turu(3)  # all three services have refused
        mock = self.oturum_yoneticisi()
        self.is_("b", True, 3)
        self.cagrilar_bekle(mock, "Inhibit", [["app.nevo.Nevo", 0, NEDEN, 4]])
        self.is_("a", False, 4)
        self.is_("b", False, 5)
        self.cagrilar_bekle(mock, "Uninhibit", [[42]])

    def test_portalin_sonradan_reddettigi_engel_tutulmus_sayilmaz(self):
        mock = self.masaustu.sahte_servis("org.freedesktop.portal.Desktop",
                                          "/org/freedesktop/portal/desktop",
                                          "org.freedesktop.portal.Inhibit")
        istek = "/org/freedesktop/portal/desktop/request/1_1/nevo"
        mock.AddMethod("", "Inhibit", "sua{sv}", "o", "ret = '%s'" % istek)
        mock.AddObject(istek, "org.freedesktop.portal.Request", {},
                       [("Close", "", "", "")])
        nesne = self.masaustu.sahte_nesne("org.freedesktop.portal.Desktop", istek)
        self.kopru()
        self.uyanik(True, 1)
        self.is_("a", True, 2)
        bekle(lambda: self.cagrilar(mock, "Inhibit"), neden="Inhibit")
        self.masaustu.dbus_turu()  # the handle has reached the shell
        nesne.EmitSignal("org.freedesktop.portal.Request", "Response", "ua{sv}",
                         [dbus.UInt32(2), dbus.Dictionary({}, signature="sv")])
        self.masaustu.dbus_turu()  # and so has the refusal
        self.is_("b", True, 3)
        bekle(lambda: len(self.cagrilar(mock, "Inhibit")) == 2, neden="ikinci Inhibit")
        self.is_("a", False, 4)
        self.is_("b", False, 5)
        bekle(lambda: [c[1] for c in nesne.GetCalls()] == ["Close"], neden="Close")
        self.masaustu.dbus_turu()
        self.assertEqual([c[1] for c in nesne.GetCalls()], ["Close"], "lost hold not closed")

    def test_yanit_vermeyen_servis_kopruyu_bekletmez(self):
        kayit = os.path.join(self.masaustu.ev, "askida.log")
        servis = subprocess.Popen(
            ["/usr/bin/python3", os.path.join(os.path.dirname(__file__), "askida_servis.py"),
             kayit], env=self.masaustu.ortam)
        self.addCleanup(servis.wait)
        self.addCleanup(servis.terminate)
        self.masaustu.sahte_nesne("org.gnome.SessionManager", "/org/gnome/SessionManager")
        self.kopru()
        self.uyanik(True, 1)
        self.gonder({"tur": "masaustu-is", "is": "a", "acik": True})
        bekle(lambda: os.path.exists(kayit), neden="Inhibit çağrısı")
        # The call now waits for an answer that never comes, for as long as the bus lets it
        # (two seconds); the bridge answers well before that.
        gonderildi = time.monotonic()
        self.kopru_turu(2)
        self.assertLess(time.monotonic() - gonderildi, 1.5)
        self.gonder({"tur": "masaustu-is", "is": "b", "acik": True})
        self.kopru_turu(3)
        # Whatever the shell sent the service by now has reached it once the service, which
        # goes on taking calls, answers one of the test's.
        self.masaustu.dbus_turu()
        hat = dbus.bus.BusConnection(self.masaustu.ortam["DBUS_SESSION_BUS_ADDRESS"])
        self.addCleanup(hat.close)
        servis = hat.get_object("org.gnome.SessionManager", "/org/gnome/SessionManager")
        dbus.Interface(servis, "org.freedesktop.DBus.Introspectable").Introspect()
        with open(kayit) as f:
            self.assertEqual(f.read(), "Inhibit\n", "one hold while jobs run, never retried")


if __name__ == "__main__":
    ortam.calistir()
