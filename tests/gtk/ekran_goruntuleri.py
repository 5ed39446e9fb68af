"""Saves screenshots of the demo in the shell for a person to look at: the curtain, the
sign-in mode, the main mode and the offline page. Usage: ekran_goruntuleri.py [folder]"""
import os
import socket
import sys
import time

import ortam

DEMO = os.path.join(ortam.KOK, "resources", "demo")


def kaydet(m, k, klasor, ad):
    x, y, en, boy = k.geometri()
    yol = os.path.join(klasor, ad + ".png")
    m.komut(["import", "-window", "root", "-crop", "%dx%d+%d+%d" % (en, boy, x, y), yol])
    print(yol)


def main():
    klasor = os.path.abspath(sys.argv[1] if len(sys.argv) > 1 else "ekran")
    os.makedirs(klasor, exist_ok=True)
    m = ortam.Masaustu()
    sunucu = ortam.Sunucu(DEMO).arka_planda()
    try:
        k = ortam.Kabuk(m, sunucu.adres + "/")
        time.sleep(0.3)
        kaydet(m, k, klasor, "perde")
        time.sleep(2.5)
        kaydet(m, k, klasor, "giris")
        k.tikla(320, 470)  # "Giriş yap"
        ortam.bekle(k.boyutlanabilir, neden="ana kip")
        time.sleep(1.0)
        kaydet(m, k, klasor, "ana")
        k.bitir()
        with socket.socket() as s:
            s.bind(("127.0.0.1", 0))
            bos = s.getsockname()[1]
        k = ortam.Kabuk(m, "http://127.0.0.1:%d/" % bos)
        time.sleep(3.0)
        kaydet(m, k, klasor, "cevrimdisi")
        k.bitir()
    finally:
        sunucu.shutdown()
        m.kapat()


if __name__ == "__main__":
    main()
