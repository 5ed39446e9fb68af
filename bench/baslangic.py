#!/usr/bin/env python3
"""Whole-process measurements of the shell under Xvfb: time from launch to the page's
first text and to the curtain's removal, and the resident memory of the shell and its
WebKit child processes once the page shows. Usage: baslangic.py [runs]"""
import os
import statistics
import subprocess
import sys
import time

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "tests", "gtk"))
import ortam  # noqa: E402


def rss_kb(kok):
    """Resident memory of a process and all its descendants, in KiB."""
    cikti = subprocess.run(["ps", "-e", "-o", "pid=,ppid=,rss="], capture_output=True,
                           text=True).stdout.split("\n")
    cocuklar, rss = {}, {}
    for satir in filter(None, (s.split() for s in cikti)):
        pid, ppid, r = map(int, satir)
        cocuklar.setdefault(ppid, []).append(pid)
        rss[pid] = r
    toplam, yigin = 0, [kok]
    while yigin:
        p = yigin.pop()
        toplam += rss.get(p, 0)
        yigin.extend(cocuklar.get(p, []))
    return toplam


def bir_olcum(m, sunucu):
    sunucu.olaylar.clear()
    t0 = time.monotonic()
    k = ortam.Kabuk(m, sunucu.adres + "/")
    sunucu.olay_bekle(lambda o: o["tur"] == "yuklendi", 30)
    metin = time.monotonic() - t0
    k.sayfa_gorunur()
    perde = time.monotonic() - t0
    time.sleep(1.0)
    bellek = rss_kb(k.surec.pid)
    k.bitir()
    return metin, perde, bellek


def main():
    tur = int(sys.argv[1]) if len(sys.argv) > 1 else 5
    m = ortam.Masaustu()
    sunucu = ortam.Sunucu(ortam.FIKSTURLER).arka_planda()
    try:
        olcumler = [bir_olcum(m, sunucu) for _ in range(tur)]
    finally:
        sunucu.shutdown()
        m.kapat()
    for ad, i, birim in (("ilk metin", 0, "s"), ("perde kalktı", 1, "s"), ("bellek", 2, "MiB")):
        degerler = [o[i] / (1024 if birim == "MiB" else 1) for o in olcumler]
        print("%-13s medyan %.2f %s  (en az %.2f, en çok %.2f, %d tur)" % (
            ad, statistics.median(degerler), birim, min(degerler), max(degerler), tur))


if __name__ == "__main__":
    main()
