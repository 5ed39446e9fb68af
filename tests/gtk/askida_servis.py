"""A session manager on the session bus that records each Inhibit call in the file named by
its argument and never answers it."""
import sys

import dbus
import dbus.mainloop.glib
import dbus.service
from gi.repository import GLib

ARAYUZ = "org.gnome.SessionManager"


class AskidaOturumYoneticisi(dbus.service.Object):
    @dbus.service.method(ARAYUZ, in_signature="susu", out_signature="u",
                         async_callbacks=("tamam", "hata"))
    def Inhibit(self, uygulama, pencere, neden, bayraklar, tamam, hata):
        with open(sys.argv[1], "a") as f:
            f.write("Inhibit\n")


dbus.mainloop.glib.DBusGMainLoop(set_as_default=True)
hat = dbus.SessionBus()
ad = dbus.service.BusName(ARAYUZ, hat)
AskidaOturumYoneticisi(hat, "/org/gnome/SessionManager")
GLib.MainLoop().run()
