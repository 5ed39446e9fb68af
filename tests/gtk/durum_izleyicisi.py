"""A StatusNotifierWatcher on the session bus that takes its name only once it can answer,
and appends the object path of each item that registers to the file named by its argument."""
import sys

import dbus
import dbus.mainloop.glib
import dbus.service
from gi.repository import GLib

AD = "org.kde.StatusNotifierWatcher"
OZELLIK = "org.freedesktop.DBus.Properties"


class Izleyici(dbus.service.Object):
    OZELLIKLER = {"IsStatusNotifierHostRegistered": dbus.Boolean(True),
                  "ProtocolVersion": dbus.Int32(0),
                  "RegisteredStatusNotifierItems": dbus.Array([], "s")}

    @dbus.service.method(AD, in_signature="s")
    def RegisterStatusNotifierItem(self, yol):
        with open(sys.argv[1], "a") as f:
            f.write(yol + "\n")

    @dbus.service.method(AD, in_signature="s")
    def RegisterStatusNotifierHost(self, ad):
        pass

    @dbus.service.method(OZELLIK, in_signature="ss", out_signature="v")
    def Get(self, arayuz, ad):
        return self.OZELLIKLER[ad]

    @dbus.service.method(OZELLIK, in_signature="s", out_signature="a{sv}")
    def GetAll(self, arayuz):
        return self.OZELLIKLER


dbus.mainloop.glib.DBusGMainLoop(set_as_default=True)
hat = dbus.SessionBus()
Izleyici(hat, "/StatusNotifierWatcher")
ad = dbus.service.BusName(AD, hat)
GLib.MainLoop().run()
