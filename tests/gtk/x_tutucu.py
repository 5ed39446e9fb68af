"""A small X client that grabs one key combination on the root window before anyone else,
prints "tuttu" once the server has accepted the grab, and holds it until its standard input
closes. Usage: x_tutucu.py KEYSYM MODIFIER_MASK"""
import ctypes
import sys

x = ctypes.CDLL("libX11.so.6")
x.XOpenDisplay.restype = ctypes.c_void_p
x.XOpenDisplay.argtypes = [ctypes.c_char_p]
x.XDefaultRootWindow.restype = ctypes.c_ulong
x.XDefaultRootWindow.argtypes = [ctypes.c_void_p]
x.XStringToKeysym.restype = ctypes.c_ulong
x.XStringToKeysym.argtypes = [ctypes.c_char_p]
x.XKeysymToKeycode.restype = ctypes.c_ubyte
x.XKeysymToKeycode.argtypes = [ctypes.c_void_p, ctypes.c_ulong]
x.XGrabKey.argtypes = [ctypes.c_void_p, ctypes.c_int, ctypes.c_uint, ctypes.c_ulong,
                       ctypes.c_int, ctypes.c_int, ctypes.c_int]
x.XSync.argtypes = [ctypes.c_void_p, ctypes.c_int]

ekran = x.XOpenDisplay(None)
kod = x.XKeysymToKeycode(ekran, x.XStringToKeysym(sys.argv[1].encode()))
x.XGrabKey(ekran, kod, int(sys.argv[2]), x.XDefaultRootWindow(ekran), 0, 1, 1)
x.XSync(ekran, 0)
print("tuttu", flush=True)
sys.stdin.read()
