"""The menu-bar item on Linux: a StatusNotifierItem registered with a StatusNotifierWatcher
on the private session bus (a small test service), shown and hidden with its preference,
each menu entry activated over the menu's D-Bus interface with its effect checked; without
a watcher nothing fails, and a watcher that comes later, or comes back, shows the item."""
import os
import subprocess
import sys

import dbus

import ortam
from ortam import KopruTesti, bekle

SNI = "org.kde.StatusNotifierItem"
MENU = "com.canonical.dbusmenu"
OZELLIK = "org.freedesktop.DBus.Properties"
IZLEYICI = os.path.join(os.path.dirname(os.path.abspath(__file__)), "durum_izleyicisi.py")


class MenuCubugu(KopruTesti):
    def setUp(self):
        super().setUp()
        self.izleyiciler = []
        self._hat = None

    def izleyici(self):
        """Starts a StatusNotifierWatcher; returns the file it records registrations in."""
        kayit = os.path.join(self.masaustu.ev, "izleyici-%d.log" % len(self.izleyiciler))
        servis = subprocess.Popen([sys.executable, IZLEYICI, kayit], env=self.masaustu.ortam)
        self.addCleanup(servis.wait)
        self.addCleanup(servis.terminate)
        self.izleyiciler.append(servis)
        bekle(lambda: self.hat().name_has_owner("org.kde.StatusNotifierWatcher"),
              neden="izleyici")
        return kayit

    def kayitlar(self, kayit):
        """The object paths of the items that registered with the watcher."""
        if not os.path.exists(kayit):
            return []
        with open(kayit) as f:
            return f.read().split()

    def kayitlar_simdi(self, kayit):
        """The registrations the watcher has had once whatever the shell sent on the bus until
        now has reached it: a few round trips through the shell's connection, so that a
        registration made when the watcher's name is looked up would have been sent, then one
        through the watcher, which records a registration before it answers the next call."""
        self.masaustu.dbus_turu(3)
        self.hat().call_blocking("org.kde.StatusNotifierWatcher", "/StatusNotifierWatcher",
                                 OZELLIK, "Get", "ss",
                                 ["org.kde.StatusNotifierWatcher", "ProtocolVersion"])
        return self.kayitlar(kayit)

    def hat(self):
        """The test's own connection to the private session bus."""
        if self._hat is None:
            self._hat = dbus.bus.BusConnection(self.masaustu.ortam["DBUS_SESSION_BUS_ADDRESS"])
            self.addCleanup(self._hat.close)
        return self._hat

    def oge(self, hat, yol):
        """The item's properties and its menu's layout: {label: id}."""
        sahip = hat.get_name_owner("app.nevo.Nevo")
        oge = hat.get_object(sahip, yol)
        ozellikler = dbus.Interface(oge, OZELLIK).GetAll(SNI)
        menu = dbus.Interface(hat.get_object(sahip, ozellikler["Menu"]), MENU)
        _, (_, _, cocuklar) = menu.GetLayout(0, -1, dbus.Array([], "s"))
        basliklar = ["---" if o.get("type") == "separator" else str(o.get("label", ""))
                     for _, o, _ in cocuklar]
        kimlikler = {str(o.get("label", "")): int(i) for i, o, _ in cocuklar
                     if o.get("type") != "separator"}
        return ozellikler, basliklar, kimlikler, menu

    def durum(self, hat, yol):
        return str(self.oge(hat, yol)[0]["Status"])

    def tikla(self, menu, kimlikler, baslik):
        menu.Event(kimlikler[baslik], "clicked", dbus.Int32(0, variant_level=1), dbus.UInt32(0))

    def menu_cubugu(self, deger, istek):
        self.gonder({"tur": "masaustu", "istek": istek, "eylem": "menu-cubugu", "deger": deger})
        return self.cevap(istek)

    def test_oge_tercihle_kaydolur_ve_girdiler_isini_yapar(self):
        kayit = self.izleyici()
        k = self.kopru()
        self.assertEqual(self.kayitlar_simdi(kayit), [], "tercih kapalıyken öğe yok")
        self.assertTrue(self.menu_cubugu(True, 1)["menuCubugu"])
        yol = self.ilk_kayit(kayit, k)
        ozellikler, basliklar, kimlikler, menu = self.oge(self.hat(), yol)
        self.assertEqual(str(ozellikler["Title"]), "Nevo")
        self.assertEqual(str(ozellikler["Status"]), "Active")
        self.assertEqual(str(ozellikler["IconName"]), "AppIcon")
        self.assertEqual(basliklar, ["Nevo'yi Aç", "Yeni sohbet", "Nevo Code görevleri", "---",
                                     "Ayarlar", "---", "Nevo'den Çık"])

        def tikla(baslik):
            self.tikla(menu, kimlikler, baslik)

        for baslik, komut in [("Yeni sohbet", "yeni-sohbet"), ("Nevo Code görevleri", "nevo-code"),
                              ("Ayarlar", "ayarlar")]:
            tikla(baslik)
            self.olay(lambda o, komut=komut: o["tur"] == "komut" and o["komut"] == komut,
                      neden=komut)
        k.tus("ctrl+w")
        bekle(lambda: not k.gorunur(), neden="pencere kapandı")
        tikla("Nevo'yi Aç")
        bekle(k.gorunur, neden="pencere yeniden göründü")
        self.assertEqual([o["komut"] for o in self.olaylar("komut")],
                         ["yeni-sohbet", "nevo-code", "ayarlar"])
        tikla("Nevo'den Çık")
        self.assertEqual(k.surec.wait(20), 0)

    def test_tercih_kapaninca_oge_gizlenir_ve_girdileri_bir_sey_yapmaz(self):
        kayit = self.izleyici()
        k = self.kopru()
        self.menu_cubugu(True, 1)
        yol = self.ilk_kayit(kayit, k)
        hat = self.hat()
        _, _, kimlikler, menu = self.oge(hat, yol)
        self.assertFalse(self.menu_cubugu(False, 2)["menuCubugu"])
        bekle(lambda: self.durum(hat, yol) == "Passive", neden="öğe gizlendi")
        self.tikla(menu, kimlikler, "Yeni sohbet")

        self.assertTrue(self.menu_cubugu(True, 3)["menuCubugu"])
        bekle(lambda: self.durum(hat, yol) == "Active", neden="öğe yeniden göründü")
        _, basliklar, kimlikler, menu = self.oge(hat, yol)
        self.assertEqual(len(basliklar), 7)
        self.tikla(menu, kimlikler, "Ayarlar")
        self.olay(lambda o: o["tur"] == "komut", neden="ayarlar")
        self.assertEqual([o["komut"] for o in self.olaylar("komut")], ["ayarlar"],
                         "gizliyken seçilen girdi bir şey yapmadı")
        self.assertEqual(set(self.kayitlar(kayit)), {yol}, "hep aynı öğe")

    def test_izleyici_yokken_hicbir_sey_bozulmaz(self):
        k = self.kopru()
        self.assertTrue(self.menu_cubugu(True, 1)["menuCubugu"])
        self.assertTrue(self.menu_cubugu(True, 2)["menuCubugu"])
        self.assertFalse(self.menu_cubugu(False, 3)["menuCubugu"])
        self.assertTrue(self.menu_cubugu(True, 4)["menuCubugu"])
        # Still alive a page load later, with the item wanted and nobody to show it.
        self.sunucu.olaylar.clear()
        k.tus("ctrl+r")
        self.olay(lambda o: o["tur"] == "hazir", neden="yeniden yüklendi")
        self.assertTrue(self.menu_cubugu(True, 5)["menuCubugu"])
        k.yasiyor_mu()

    def ilk_kayit(self, kayit, k):
        """Waits for the item to register with the watcher that records in `kayit`, whole."""
        yol = bekle(lambda: k.yasiyor_mu() or (self.kayitlar(kayit) or [None])[-1],
                    neden="öğe kaydoldu")
        ozellikler, basliklar, _, _ = bekle(lambda: self.oge(self.hat(), yol), neden="öğe")
        self.assertEqual(str(ozellikler["Status"]), "Active")
        self.assertEqual(len(basliklar), 7)
        return yol

    def test_izleyici_sonradan_gelince_oge_kaydolur(self):
        k = self.kopru()
        self.assertTrue(self.menu_cubugu(True, 1)["menuCubugu"])
        self.ilk_kayit(self.izleyici(), k)

    def test_izleyici_gidip_gelince_oge_yeniden_kaydolur(self):
        kayit = self.izleyici()
        izleyici = self.izleyiciler[-1]
        k = self.kopru()
        self.menu_cubugu(True, 1)
        self.ilk_kayit(kayit, k)
        izleyici.terminate()
        izleyici.wait(20)
        bekle(lambda: not self.hat().name_has_owner("org.kde.StatusNotifierWatcher"),
              neden="izleyici gitti")
        self.sunucu.olaylar.clear()
        k.tus("ctrl+r")
        self.olay(lambda o: o["tur"] == "hazir", neden="izleyicisiz yeniden yüklendi")
        k.yasiyor_mu()
        self.ilk_kayit(self.izleyici(), k)


if __name__ == "__main__":
    ortam.calistir()
