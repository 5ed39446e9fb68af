#!/usr/bin/env python3
"""Bridge throughput of the real shell under Xvfb: the fixture page posts a burst of
"masaustu" requests and times until the last reply has reached its callback.
Usage: kopru.py [runs] [requests per burst]"""
import os
import statistics
import sys

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "tests", "gtk"))
import ortam  # noqa: E402


def main():
    tur = int(sys.argv[1]) if len(sys.argv) > 1 else 5
    adet = int(sys.argv[2]) if len(sys.argv) > 2 else 10000
    m = ortam.Masaustu()
    sunucu = ortam.Sunucu(ortam.FIKSTURLER).arka_planda()
    k = None
    try:
        k = ortam.Kabuk(m, sunucu.adres + "/kopru.html")
        sunucu.olay_bekle(lambda o: o["tur"] == "hazir", 30)
        sureler = []
        for _ in range(tur):
            sunucu.olaylar.clear()
            sunucu.komut_ekle({"patlama": adet})
            olay = sunucu.olay_bekle(lambda o: o["tur"] == "patlama", 300)
            sureler.append(olay["sure"])
    finally:
        if k:
            k.bitir()
        sunucu.shutdown()
        m.kapat()
    print("%d istek: medyan %.0f ms, istek başına %.1f µs (en az %.0f, en çok %.0f ms, %d tur)"
          % (adet, statistics.median(sureler), statistics.median(sureler) * 1000 / adet,
             min(sureler), max(sureler), tur))


if __name__ == "__main__":
    main()
