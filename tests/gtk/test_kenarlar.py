"""The main window's edges on Linux: in the main mode every edge and corner resizes the
window under its own pointer shape; on the sign-in pages the edges are the page's."""
import ctypes
import ctypes.util
import time

import ortam
from ortam import KabukTesti, bekle

ANA_ORTADA = (260, 120, 1080, 760)
GIRIS_ORTADA = (360, 90, 880, 820)
ADIM = 40
# Each edge and corner: its outward direction and a point in it, from the window's size.
KENARLAR = {
    "sol-ust": ((-1, -1), lambda w, h: (1, 1)),
    "ust": ((0, -1), lambda w, h: (w // 2, 1)),
    "sag-ust": ((1, -1), lambda w, h: (w - 2, 1)),
    "sol": ((-1, 0), lambda w, h: (1, h // 2)),
    "sag": ((1, 0), lambda w, h: (w - 2, h // 2)),
    "sol-alt": ((-1, 1), lambda w, h: (1, h - 2)),
    "alt": ((0, 1), lambda w, h: (w // 2, h - 2)),
    "sag-alt": ((1, 1), lambda w, h: (w - 2, h - 2)),
}
ICERI = (600, 400)  # a point of the page away from every edge and control


class _Imlec(ctypes.Structure):
    _fields_ = [("x", ctypes.c_short), ("y", ctypes.c_short),
                ("width", ctypes.c_ushort), ("height", ctypes.c_ushort),
                ("xhot", ctypes.c_ushort), ("yhot", ctypes.c_ushort),
                ("cursor_serial", ctypes.c_ulong), ("pixels", ctypes.POINTER(ctypes.c_ulong)),
                ("atom", ctypes.c_ulong), ("name", ctypes.c_char_p)]


class ImlecOkuyucu:
    """The pointer's current shape on a display, as its size, hot spot and pixels."""

    def __init__(self, ekran):
        self.x11 = ctypes.CDLL(ctypes.util.find_library("X11"))
        self.xf = ctypes.CDLL(ctypes.util.find_library("Xfixes"))
        self.x11.XOpenDisplay.restype = ctypes.c_void_p
        self.x11.XOpenDisplay.argtypes = [ctypes.c_char_p]
        self.x11.XCloseDisplay.argtypes = [ctypes.c_void_p]
        self.x11.XFree.argtypes = [ctypes.c_void_p]
        self.xf.XFixesGetCursorImage.restype = ctypes.POINTER(_Imlec)
        self.xf.XFixesGetCursorImage.argtypes = [ctypes.c_void_p]
        self.xf.XFixesQueryVersion.argtypes = [ctypes.c_void_p, ctypes.POINTER(ctypes.c_int),
                                               ctypes.POINTER(ctypes.c_int)]
        self.baglanti = self.x11.XOpenDisplay(ekran.encode())
        ana, yan = ctypes.c_int(5), ctypes.c_int(0)
        self.xf.XFixesQueryVersion(self.baglanti, ctypes.byref(ana), ctypes.byref(yan))

    def sekil(self):
        i = self.xf.XFixesGetCursorImage(self.baglanti)
        c = i.contents
        sekil = (c.width, c.height, c.xhot, c.yhot,
                 tuple(c.pixels[n] & 0xffffffff for n in range(c.width * c.height)))
        self.x11.XFree(i)
        return sekil

    def kapat(self):
        self.x11.XCloseDisplay(self.baglanti)


class Kenarlar(KabukTesti):
    def ana_kipte(self):
        k = self.kabuk("/home")
        k.sayfa_gorunur()
        bekle(lambda: k.geometri() == ANA_ORTADA, neden="ana kip")
        return k

    def surukle(self, k, nokta, dx, dy):
        """Presses at `nokta` of the window and drags by (dx, dy) in small steps."""
        gx, gy, _, _ = k.geometri()
        m = self.masaustu
        m.xdotool("mousemove", gx + nokta[0], gy + nokta[1])
        time.sleep(0.1)
        m.xdotool("mousedown", 1)
        for adim in range(1, 11):
            m.xdotool("mousemove", gx + nokta[0] + dx * adim // 10, gy + nokta[1] + dy * adim // 10)
            time.sleep(0.03)
        m.xdotool("mouseup", 1)

    def test_ana_kipte_her_kenar_ve_kose_pencereyi_boyutlandirir(self):
        k = self.ana_kipte()
        for ad, ((sx, sy), nokta) in KENARLAR.items():
            with self.subTest(kenar=ad):
                self.masaustu.xdotool("windowmove", "--sync", k.pencere, *ANA_ORTADA[:2])
                self.masaustu.xdotool("windowsize", "--sync", k.pencere, *ANA_ORTADA[2:])
                bekle(lambda: k.geometri() == ANA_ORTADA, neden="başlangıç çerçevesi")
                x, y, w, h = ANA_ORTADA
                self.surukle(k, nokta(w, h), ADIM * sx, ADIM * sy)
                beklenen = (x + ADIM * min(sx, 0), y + ADIM * min(sy, 0),
                            w + ADIM * abs(sx), h + ADIM * abs(sy))
                bekle(lambda: k.geometri() == beklenen, neden="%s: %s" % (ad, beklenen))

    def test_ana_kipte_kenarlar_boyutlandirma_imleci_gosterir(self):
        k = self.ana_kipte()
        okuyucu = ImlecOkuyucu(self.masaustu.ortam["DISPLAY"])
        self.addCleanup(okuyucu.kapat)
        gx, gy, w, h = k.geometri()
        self.masaustu.xdotool("mousemove", gx + ICERI[0], gy + ICERI[1])
        time.sleep(0.2)
        iceri = okuyucu.sekil()
        sekiller = {}
        for ad, (_, nokta) in KENARLAR.items():
            px, py = nokta(w, h)
            self.masaustu.xdotool("mousemove", gx + px, gy + py)
            sekiller[ad] = bekle(lambda: (s := okuyucu.sekil()) != iceri and s, 5,
                                 neden="%s imleci" % ad)
            self.masaustu.xdotool("mousemove", gx + ICERI[0], gy + ICERI[1])
            bekle(lambda: okuyucu.sekil() == iceri, 5, neden="sayfanın imleci")
        # Across and along, and the two diagonals, look different in any cursor theme.
        self.assertNotEqual(sekiller["sol"], sekiller["ust"])
        self.assertEqual(sekiller["sol"] == sekiller["sag"], sekiller["ust"] == sekiller["alt"])
        self.assertNotEqual(sekiller["sol-ust"], sekiller["sag-ust"])
        self.assertNotEqual(sekiller["sol-ust"], sekiller["sol"])

    def test_giris_kipinde_kenar_sayfanindir_boyutlandirmaz(self):
        k = self.kabuk("/")
        k.sayfa_gorunur()
        bekle(lambda: k.geometri() == GIRIS_ORTADA, neden="giriş kipi")
        _, _, w, h = GIRIS_ORTADA
        self.surukle(k, (w - 2, h // 2), ADIM, 0)
        o = self.olay(lambda o: o["tur"] == "fare", neden="sayfa basışı aldı")
        self.assertEqual(int(o["x"]), w - 2)
        self.fare_turu(k)  # the drag has been handled to its end
        self.assertEqual(k.geometri(), GIRIS_ORTADA)


if __name__ == "__main__":
    ortam.calistir()
