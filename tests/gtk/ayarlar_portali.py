"""A stand-in for the desktop portal's settings (python3-dbusmock template): the appearance
group's colour scheme, given as the parameter "renk". `Read` wraps the value in one variant
more, as the desktop's portal does. A template's methods are in place before the service
answers its first call, so a client that reads as soon as the name appears is answered."""
import dbus

BUS_NAME = "org.freedesktop.portal.Desktop"
MAIN_OBJ = "/org/freedesktop/portal/desktop"
MAIN_IFACE = "org.freedesktop.portal.Settings"
SYSTEM_BUS = False


def load(mock, parameters):
    mock.AddProperties(MAIN_IFACE, {"version": dbus.UInt32(1)})
    mock.AddMethod(MAIN_IFACE, "Read", "ss", "v",
                   "ret = dbus.UInt32(%d, variant_level=2) if args == "
                   "['org.freedesktop.appearance', 'color-scheme'] else None"
                   % int(parameters.get("renk", 0)))
