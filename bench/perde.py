#!/usr/bin/env python3
"""The curtain against a bare WebKitGTK window, under Xvfb: time from launch until the
page's text is visible on screen, and whether the curtain ever fades onto a page that has
not been painted yet (a fade that shows the bare background while the text is missing).
Usage: NEVO_IKILI=… NEVO_CIPLAK=… perde.py [runs]"""
import os
import statistics
import subprocess
import sys
import time

BURASI = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, os.path.join(BURASI, "..", "tests", "gtk"))
import ortam  # noqa: E402

CIPLAK = os.environ.get("NEVO_CIPLAK", os.path.join(ortam.KOK, "build", "bin",
                                                    "nevo_ciplak_pencere"))
METIN_NOKTASI = (600, 300)  # inside the page's one big glyph, clear of the curtain's icon
ZEMIN_NOKTASI = (600, 700)  # the page's background
METIN_RENGI = (34, 34, 34)


def fark(a, b):
    return max(abs(x - y) for x, y in zip(a, b))


def noktalar(m, pencere):
    """(text pixel, background pixel) of one capture of the window."""
    x, y = METIN_NOKTASI
    gx, gy, _, _ = pencere.geometri()
    cikti = m.komut(["import", "-window", "root", "-crop",
                     "1x%d+%d+%d" % (ZEMIN_NOKTASI[1] - y + 1, gx + x, gy + y),
                     "-depth", "8", "txt:-"])
    satirlar = [s for s in cikti.splitlines() if not s.startswith("#")]
    renk = [tuple(int(v) for v in s.split("(")[1].split(")")[0].split(",")[:3])
            for s in (satirlar[0], satirlar[-1])]
    return renk[0], renk[1]


class Ciplak:
    """The bare window, with the few calls the measurement makes of a shell."""

    def __init__(self, m, adres):
        self.m = m
        self.surec = subprocess.Popen([CIPLAK, adres], env=m.ortam, stderr=subprocess.DEVNULL)
        self.pencere = ortam.bekle(self.bul, neden="çıplak pencere")

    def bul(self):
        cikti = self.m.komut(["xdotool", "search", "--onlyvisible", "--name", "^Ciplak$"],
                             hata_yok=True).split()
        return cikti[0] if cikti else None

    geometri = ortam.Kabuk.geometri

    def bitir(self):
        self.surec.terminate()
        self.surec.wait(10)


def bir_olcum(m, adres, sinif):
    """Seconds from launch to visible text, and whether a fade began over an unpainted page."""
    t0 = time.monotonic()
    p = sinif(m, adres)
    try:
        tam = fark(ortam.SAYFA_RENGI, METIN_RENGI)
        bos_solma = False
        while time.monotonic() - t0 < 30:
            metin, zemin = noktalar(m, p)
            solma_basladi = fark(zemin, ortam.PERDE_RENGI) > 0.15 * fark(ortam.SAYFA_RENGI,
                                                                         ortam.PERDE_RENGI)
            if solma_basladi and fark(metin, zemin) < 10:
                bos_solma = True
            if fark(metin, zemin) >= tam / 2 and fark(zemin, ortam.PERDE_RENGI) > tam / 2:
                return time.monotonic() - t0, bos_solma
        raise AssertionError("metin 30 s içinde görünmedi")
    finally:
        p.bitir()


def main():
    tur = int(sys.argv[1]) if len(sys.argv) > 1 else 10
    m = ortam.Masaustu()
    sunucu = ortam.Sunucu(BURASI).arka_planda()
    adres = sunucu.adres + "/perde_sayfasi.html"
    kabuk, ciplak, bos = [], [], 0
    try:
        for _ in range(tur):
            sure, bos_solma = bir_olcum(m, adres, ortam.Kabuk)
            kabuk.append(sure)
            bos += bos_solma
            ciplak.append(bir_olcum(m, adres, Ciplak)[0])
    finally:
        sunucu.shutdown()
        m.kapat()
    for ad, d in (("kabuk", kabuk), ("çıplak WebKitGTK", ciplak)):
        print("%-17s metin görünür medyan %.2f s  (en az %.2f, en çok %.2f, %d tur)" % (
            ad, statistics.median(d), min(d), max(d), tur))
    print("oran (medyan)     %.2f×" % (statistics.median(kabuk) / statistics.median(ciplak)))
    print("boyanmamış sayfaya solma: %d / %d tur" % (bos, tur))


if __name__ == "__main__":
    main()
