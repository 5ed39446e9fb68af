"""The sleep blocker on Linux: page jobs take and release one suspend inhibitor over a mocked
session bus (python3-dbusmock), in the order GNOME session manager, freedesktop power
management, desktop portal; without any of them nothing is held and nothing fails."""
import signal

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

    def is_(self, ad, acik, istek):
        self.gonder({"tur": "masaustu-is", "is": ad, "acik": acik})
        self.gonder({"tur": "masaustu", "istek": istek, "eylem": "durum"})
        self.cevap(istek)  # the job message before it has been handled

    def uyanik(self, deger, istek):
        self.gonder({"tur": "masaustu", "istek": istek, "eylem": "uyanik", "deger": deger})
        self.cevap(istek)

    def test_isler_engeli_alir_ve_birakir(self):
        mock = self.oturum_yoneticisi()
        self.kopru()
        self.is_("a", True, 1)
        self.assertEqual(self.cagrilar(mock, "Inhibit"), [], "tercih kapalıyken alınmaz")
        self.uyanik(True, 2)
        self.assertEqual(self.cagrilar(mock, "Inhibit"), [["app.nevo.Nevo", 0, NEDEN, 4]])
        self.is_("b", True, 3)
        self.is_("a", False, 4)
        self.assertEqual(len(self.cagrilar(mock, "Inhibit")), 1)
        self.assertEqual(self.cagrilar(mock, "Uninhibit"), [])
        self.is_("b", "false", 5)  # not a boolean: an end
        self.assertEqual(self.cagrilar(mock, "Uninhibit"), [[42]])

    def test_tercih_kapaninca_ve_sayfa_yenilenince_birakilir(self):
        mock = self.oturum_yoneticisi()
        k = self.kopru()
        self.uyanik(True, 1)
        self.is_("a", True, 2)
        self.uyanik(False, 3)
        self.assertEqual(self.cagrilar(mock, "Uninhibit"), [[42]])
        self.uyanik(True, 4)
        self.assertEqual(len(self.cagrilar(mock, "Inhibit")), 2)
        self.sunucu.olaylar.clear()
        k.tus("ctrl+r")
        self.olay(lambda o: o["tur"] == "hazir", neden="yeniden yüklendi")
        bekle(lambda: len(self.cagrilar(mock, "Uninhibit")) == 2, neden="yenilemede bırakıldı")

    def test_cikista_birakilir(self):
        mock = self.oturum_yoneticisi()
        k = self.kopru()
        self.uyanik(True, 1)
        self.is_("a", True, 2)
        k.surec.send_signal(signal.SIGTERM)
        self.assertEqual(k.surec.wait(20), 0)
        self.assertEqual(self.cagrilar(mock, "Uninhibit"), [[42]])

    def test_oturum_yoneticisi_yoksa_guc_yonetimi(self):
        mock = self.masaustu.sahte_servis("org.freedesktop.PowerManagement",
                                          "/org/freedesktop/PowerManagement/Inhibit",
                                          "org.freedesktop.PowerManagement.Inhibit")
        mock.AddMethod("", "Inhibit", "ss", "u", "ret = 7")
        mock.AddMethod("", "UnInhibit", "u", "", "")
        self.kopru()
        self.uyanik(True, 1)
        self.is_("a", True, 2)
        self.assertEqual(self.cagrilar(mock, "Inhibit"), [["app.nevo.Nevo", NEDEN]])
        self.is_("a", False, 3)
        self.assertEqual(self.cagrilar(mock, "UnInhibit"), [[7]])

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
        cagri = self.cagrilar(mock, "Inhibit")
        self.assertEqual(len(cagri), 1)
        self.assertEqual(cagri[0][1], 4)
        self.assertEqual(str(cagri[0][2]["reason"]), NEDEN)
        self.is_("a", False, 3)
        nesne = self.masaustu.sahte_nesne("org.freedesktop.portal.Desktop", istek)
        self.assertEqual([c[1] for c in nesne.GetCalls()], ["Close"])

    def test_servis_yoksa_hicbir_sey_bozulmaz(self):
        k = self.kopru()
        self.uyanik(True, 1)
        self.is_("a", True, 2)
        self.is_("a", False, 3)
        self.assertIsNone(k.surec.poll())


if __name__ == "__main__":
    ortam.calistir()
