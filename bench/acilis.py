#!/usr/bin/env python3
"""Launch to readable text: the shell against a bare WebKitGTK window, interleaved run by
run under Xvfb, on a light page whose text arrives with the document.

For each launch:
  harita   the window is mapped (X's MapNotify);
  metin    the page's text is in the document (the page's own clock);
  boyandi  the page has painted the frame with its text (the page's own clock);
  gorunur  the text shows on screen in any form (the window's pixels, read every ~1 ms);
           in the shell, the curtain has begun to fade;
  tam      the text is fully seen (the fade has finished);
  bellek   PSS of the window's processes (the agent's apart) 3 s after `boyandi`.

Usage: NEVO_IKILI=… NEVO_CIPLAK=… NEVO_OLCER=… acilis.py [pairs] [--iz]
With --iz the shell writes its launch trace (NEVO_ACILIS_IZI) and the medians of each
mark are printed. With NEVO_KARSI set to another build of the shell, that build takes the
bare window's place: two builds compared under the same watch, pair by pair."""
import math
import os
import statistics
import subprocess
import sys
import time

BURASI = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, os.path.join(BURASI, "..", "tests", "gtk"))
import ortam  # noqa: E402

BIN = os.path.dirname(ortam.NEVO)
CIPLAK = os.environ.get("NEVO_CIPLAK", os.path.join(BIN, "nevo_ciplak_pencere"))
OLCER = os.environ.get("NEVO_OLCER", os.path.join(BIN, "nevo_acilis_olcer"))
KARSI = os.environ.get("NEVO_KARSI")
KARSI_ADI = "other build" if KARSI else "bare"
METIN_NOKTASI = (600, 300)  # inside the page's one big glyph, clear of the curtain's icon
ZEMIN_NOKTASI = (600, 700)  # the page's background
RENKLER = ("222222", "f4efe6")  # the glyph's and the background's colours
OLCULER = ("harita", "metin", "boyandi", "gorunur", "tam")
HEDEFLER = {"harita": 1.05, "gorunur": 1.05, "boyandi": 1.00}
IZ_ONEKI = "nevo-acilis "
SISTEM_VERI_DIZINLERI = "/usr/local/share:/usr/share"


def pss_kb(pid):
    try:
        with open("/proc/%d/smaps_rollup" % pid) as f:
            return next(int(s.split()[1]) for s in f if s.startswith("Pss:"))
    except (OSError, StopIteration):
        return 0


def agac(kok):
    """{pid: command name} of a process and all its descendants."""
    cocuklar, adlar = {}, {}
    for satir in subprocess.run(["ps", "-e", "-o", "pid=,ppid=,comm="], capture_output=True,
                                text=True).stdout.splitlines():
        pid, ppid, ad = satir.split(None, 2)
        cocuklar.setdefault(int(ppid), []).append(int(pid))
        adlar[int(pid)] = ad.strip()
    sonuc, yigin = {}, [kok]
    while yigin:
        p = yigin.pop()
        sonuc[p] = adlar.get(p, "")
        yigin.extend(cocuklar.get(p, []))
    return sonuc


SUREC_TURLERI = (("arayuz", "UI process"), ("WebKitWebProces", "web process"),
                 ("WebKitNetworkPr", "network process"))


def bellek(kok):
    """PSS in KiB: {"bellek": the window's processes, "ajan": the agent (the node process
    and below), and each kind of SUREC_TURLERI}."""
    surecler = agac(kok)
    ajan = set()
    for pid, ad in surecler.items():
        if ad == "node":
            ajan.update(agac(pid))
    d = {"bellek": 0, "ajan": sum(pss_kb(p) for p in ajan)}
    for pid, ad in surecler.items():
        if pid in ajan:
            continue
        pss = pss_kb(pid)
        d["bellek"] += pss
        tur = "arayuz" if pid == kok else ad
        d[tur] = d.get(tur, 0) + pss
    return d


def bir_acilis(m, sunucu, komut, ek_ortam):
    sunucu.olaylar.clear()
    hata = open(os.path.join(m.ev, "acilis.err"), "w+")
    olcer = subprocess.Popen(
        [OLCER, ek_ortam.pop("_baslik"), *map(str, METIN_NOKTASI + ZEMIN_NOKTASI), *RENKLER,
         "--", *komut],
        env=dict(m.ortam, **ek_ortam), stdin=subprocess.PIPE, stdout=subprocess.PIPE,
        stderr=hata, text=True)
    d = {}
    for satir in olcer.stdout:
        ad, deger = satir.split(None, 1)
        if ad == "yok":
            olcer.stdin.close()
            olcer.wait(30)
            raise AssertionError("metin görünmedi (pencere, renkler): %s %r" % (deger, d))
        d[ad] = float(deger)
        if ad == "tam":
            break
    baslangic = d.pop("baslangic")
    d["_t0"] = d.pop("monoton")
    for tur in ("metin", "boyandi"):
        d[tur] = float(sunucu.olay_bekle(lambda o, t=tur: o.get("tur") == t, 30)["t"]) - baslangic
    time.sleep(max(0.0, (d["boyandi"] + 3000 - (time.time() * 1000 - baslangic)) / 1000))
    d.update(bellek(int(d.pop("surec"))))
    olcer.stdin.close()
    son = olcer.stdout.read().split()
    olcer.wait(30)
    hata.seek(0)
    d["iz"] = [s[len(IZ_ONEKI):].split(None, 1) for s in hata.read().splitlines()
               if s.startswith(IZ_ONEKI)]
    hata.close()
    d["son"] = int(son[-1]) if son else None
    return d


def medyan_araligi(degerler, guven=0.95):
    """A distribution-free interval for the median: the order statistics whose binomial
    coverage is at least `guven`."""
    n = len(degerler)
    s = sorted(degerler)
    k = 0
    while k + 1 <= n // 2:
        kapsam = 1 - 2 * sum(math.comb(n, i) for i in range(k + 1)) / 2 ** n
        if kapsam < guven:
            break
        k += 1
    return s[max(k - 1, 0)], s[n - max(k, 1)]


def tablo(kabuk, ciplak):
    print("| launch to … | shell median (range) | %s median (range) | ratio | goal | "
          "shell − goal × %s, 95 %% interval of the median | met |" % (KARSI_ADI, KARSI_ADI))
    print("|---|---|---|---|---|---|---|")
    for ad in OLCULER:
        a = [d[ad] for d in kabuk]
        b = [d[ad] for d in ciplak]
        hedef = HEDEFLER.get(ad)
        satir = "| %s | %.0f ms (%.0f–%.0f) | %.0f ms (%.0f–%.0f) | %.2f |" % (
            ad, statistics.median(a), min(a), max(a), statistics.median(b), min(b), max(b),
            statistics.median(a) / statistics.median(b))
        if hedef:
            alt, ust = medyan_araligi([x - hedef * y for x, y in zip(a, b)])
            satir += " ≤ %.2f× | %.0f … %.0f ms | %s |" % (hedef, alt, ust,
                                                            "yes" if ust <= 0 else "no")
        else:
            satir += " | | |"
        print(satir)
    satirlar = [("bellek", "PSS, window's processes")]
    satirlar += [(tur, "… of which the " + ad) for tur, ad in SUREC_TURLERI]
    for ad, baslik in satirlar + [("ajan", "PSS, agent")]:
        a = [d.get(ad, 0) / 1024 for d in kabuk]
        b = [d.get(ad, 0) / 1024 for d in ciplak]
        print("| %s | %.1f MiB (%.1f–%.1f) | %.1f MiB | %s | %s | | |" % (
            baslik, statistics.median(a), min(a), max(a), statistics.median(b),
            "%.2f" % (statistics.median(a) / statistics.median(b)) if ad != "ajan" else "",
            "≤ 1.00×" if ad == "bellek" else ""))


def isaretler(olcumler):
    """{mark: median ms from launch}."""
    tum = {}
    for d in olcumler:
        for ms, ad in d["iz"]:
            tum.setdefault(ad, []).append(float(ms) - d["_t0"])
    return {ad: statistics.median(v) for ad, v in tum.items()}


def iz_tablosu(kabuk, ciplak):
    a, b = isaretler(kabuk), isaretler(ciplak)
    print("\n| launch trace (median ms from launch) | shell | %s |\n|---|---|---|" % KARSI_ADI)
    for ad in sorted(a.keys() | b.keys(), key=lambda ad: a.get(ad, b.get(ad))):
        print("| %s | %s | %s |" % (ad, *("%.1f" % c[ad] if ad in c else "" for c in (a, b))))


def main():
    argumanlar = [a for a in sys.argv[1:] if not a.startswith("--")]
    iz = "--iz" in sys.argv
    cift = int(argumanlar[0]) if argumanlar else 15
    m = ortam.Masaustu()
    sunucu = ortam.Sunucu(BURASI).arka_planda()
    adres = sunucu.adres + "/acilis_sayfasi.html"
    kabuk, ciplak = [], []

    def kabuk_acilisi(ikili):
        return [ikili], {"NEVO_ADRES": adres, "_baslik": "Nevo"}
    yuk = []
    try:
        # One launch of each first, unmeasured: the desktop's services start on the first
        # call of a session, and the caches fill.
        for i in range(-1, cift):
            karsi = kabuk_acilisi(KARSI) if KARSI else ([CIPLAK, adres], {"_baslik": "Ciplak"})
            sira = [(kabuk, *kabuk_acilisi(ortam.NEVO)), (ciplak, *karsi)]
            # The shell first in the warm-up: the window manager of a new desktop can still
            # be taking the screen, and the bare window would then open unmanaged.
            if i > 0 and i % 2:
                sira.reverse()
            for liste, komut, ek in sira:
                # The system's data directories, as on a user's machine (the test
                # desktop's own copy has no icon caches).
                ek["XDG_DATA_DIRS"] = SISTEM_VERI_DIZINLERI
                if iz:
                    ek["NEVO_ACILIS_IZI"] = "1"
                d = bir_acilis(m, sunucu, komut, ek)
                if (liste is kabuk or KARSI) and d["son"] != 0:
                    raise AssertionError("kabuk %s ile bitti" % d["son"])
                if i >= 0:
                    liste.append(d)
            yuk.append(os.getloadavg()[0])
    finally:
        sunucu.shutdown()
        m.kapat()
    print("%d interleaved pairs; 1-minute load average during the runs: %.2f – %.2f\n"
          % (cift, min(yuk), max(yuk)))
    tablo(kabuk, ciplak)
    if iz:
        iz_tablosu(kabuk, ciplak)


if __name__ == "__main__":
    main()
