#!/usr/bin/env python3
"""Checks a built Nevo.app before it ships: every Mach-O in it links only the system and the
bundle itself, runs on the oldest supported macOS, and sits where code belongs; the script
runtime is Contents/Helpers/node with Contents/Resources/node a relative link to it; the
Info.plist says what the application is; the icon is there.

On a Mac:        mac_paket_denetimi.py kaydet Nevo.app > kayit.json
                 mac_paket_denetimi.py denetle kayit.json --en-dusuk 12.0 --kimlik app.nevo.Nevo
or in one go:    mac_paket_denetimi.py denetle Nevo.app --en-dusuk 12.0 --kimlik app.nevo.Nevo
The record holds the bundle's file list and the outputs of `otool -L`, `vtool -show-build`
and `plutil -convert json`; the decisions read only the record, so they are tested on
recorded outputs anywhere. Exit status 1 and one line per problem when the bundle fails."""
import argparse
import json
import os
import re
import subprocess
import sys

# The first four bytes of a Mach-O file, thin (32- or 64-bit, either byte order) or fat.
MACH_O_IMZALARI = {bytes.fromhex(h) for h in
                   ("feedface", "cefaedfe", "feedfacf", "cffaedfe", "cafebabe", "cafebabf")}
# Where code may sit in a bundle: signed as code there, and kept by notarisation.
KOD_YERLERI = ("Contents/MacOS/", "Contents/Helpers/", "Contents/Frameworks/")
SISTEM_YOLLARI = ("/System/Library/", "/usr/lib/")
BAGLI_YOLLAR = ("@executable_path/", "@loader_path/", "@rpath/")
CALISMA_ORTAMI = "Contents/Helpers/node"
CALISMA_ORTAMI_BAGI = "Contents/Resources/node"
SIMGE = "Contents/Resources/AppIcon.icns"


def calistir(*komut):
    return subprocess.run(komut, check=True, capture_output=True, text=True).stdout


def mach_o_mu(yol):
    with open(yol, "rb") as f:
        return f.read(4) in MACH_O_IMZALARI


def kaydet(paket):
    """The record of the bundle at `paket`, read with the tools of the Mac it is on."""
    dosyalar, mach_o = {}, {}
    for kok, dizinler, adlar in os.walk(paket):
        for ad in sorted(dizinler + adlar):
            yol = os.path.join(kok, ad)
            goreli = os.path.relpath(yol, paket)
            if os.path.islink(yol):
                dosyalar[goreli] = {"bag": os.readlink(yol)}
            elif os.path.isfile(yol):
                dosyalar[goreli] = {"boyut": os.path.getsize(yol)}
                if mach_o_mu(yol):
                    mach_o[goreli] = {"otool_L": calistir("otool", "-L", yol),
                                      "vtool": calistir("vtool", "-show-build", yol)}
    bilgi = calistir("plutil", "-convert", "json", "-o", "-",
                     os.path.join(paket, "Contents", "Info.plist"))
    return {"dosyalar": dosyalar, "mach_o": mach_o, "bilgi_listesi": bilgi}


def bagimliliklar(otool_ciktisi):
    """The install names `otool -L` lists, its header lines (one per file or architecture)
    left out."""
    return [satir.strip().split(" (compatibility version")[0]
            for satir in otool_ciktisi.splitlines() if satir.startswith(("\t", " "))]


def en_dusuk_surumler(vtool_ciktisi):
    """Every minimum macOS the file states: LC_BUILD_VERSION's minos, or the older
    LC_VERSION_MIN_MACOSX's version."""
    surumler = re.findall(r"^\s*minos (\S+)$", vtool_ciktisi, re.M)
    for bolum in vtool_ciktisi.split("Load command")[1:]:
        if "LC_VERSION_MIN_MACOSX" in bolum:
            surumler += re.findall(r"^\s*version (\S+)$", bolum, re.M)
    return surumler


def surum(metin):
    return tuple(int(p) for p in metin.split("."))


def kurulum_adi_sorunlari(kayit):
    adlar = {os.path.basename(y) for y in kayit["mach_o"]}
    sorunlar = []
    for yol, ciktilar in sorted(kayit["mach_o"].items()):
        for bag in bagimliliklar(ciktilar["otool_L"]):
            if bag.startswith(SISTEM_YOLLARI):
                continue
            if bag.startswith(BAGLI_YOLLAR) and os.path.basename(bag) in adlar:
                continue
            sorunlar.append(f"{yol} links {bag}, neither the system's nor the bundle's")
    return sorunlar


def en_dusuk_macos_sorunlari(kayit, en_dusuk, ana_ikili):
    sorunlar = []
    for yol, ciktilar in sorted(kayit["mach_o"].items()):
        surumler = en_dusuk_surumler(ciktilar["vtool"])
        if not surumler:
            sorunlar.append(f"{yol} states no minimum macOS")
        for s in surumler:
            if surum(s) > surum(en_dusuk):
                sorunlar.append(f"{yol} needs macOS {s}, newer than {en_dusuk}")
            elif yol == ana_ikili and s != en_dusuk:
                sorunlar.append(f"{yol} is built for macOS {s}, not {en_dusuk}")
    return sorunlar


def yer_sorunlari(kayit):
    sorunlar = [f"{yol} is code outside {', '.join(KOD_YERLERI)}"
                for yol in sorted(kayit["mach_o"]) if not yol.startswith(KOD_YERLERI)]
    if CALISMA_ORTAMI not in kayit["mach_o"]:
        sorunlar.append(f"{CALISMA_ORTAMI} is not a Mach-O file")
    bag = kayit["dosyalar"].get(CALISMA_ORTAMI_BAGI, {}).get("bag")
    if bag != "../Helpers/node":
        sorunlar.append(f"{CALISMA_ORTAMI_BAGI} is {bag or 'no link'}, not a link to "
                        "../Helpers/node")
    if kayit["dosyalar"].get(SIMGE, {}).get("boyut", 0) <= 0:
        sorunlar.append(f"{SIMGE} is missing or empty")
    return sorunlar


def bilgi_listesi_sorunlari(bilgi, en_dusuk, kimlik):
    beklenen = {"CFBundleIdentifier": kimlik, "LSMinimumSystemVersion": en_dusuk,
                "CFBundleIconFile": "AppIcon", "CFBundleExecutable": "Nevo",
                "CFBundlePackageType": "APPL"}
    sorunlar = [f"Info.plist: {anahtar} is {bilgi.get(anahtar)!r}, not {deger!r}"
                for anahtar, deger in beklenen.items() if bilgi.get(anahtar) != deger]
    semalar = [s for t in bilgi.get("CFBundleURLTypes", [])
               for s in t.get("CFBundleURLSchemes", [])]
    if semalar != ["nevo"]:
        sorunlar.append(f"Info.plist: URL schemes are {semalar}, not ['nevo']")
    return sorunlar


def denetle(kayit, en_dusuk, kimlik):
    """Every problem of the recorded bundle, one sentence each; none for a bundle that ships."""
    bilgi = json.loads(kayit["bilgi_listesi"])
    ana_ikili = "Contents/MacOS/" + str(bilgi.get("CFBundleExecutable"))
    sorunlar = bilgi_listesi_sorunlari(bilgi, en_dusuk, kimlik)
    if ana_ikili not in kayit["mach_o"]:
        sorunlar.append(f"{ana_ikili} is not a Mach-O file")
    sorunlar += kurulum_adi_sorunlari(kayit)
    sorunlar += en_dusuk_macos_sorunlari(kayit, en_dusuk, ana_ikili)
    sorunlar += yer_sorunlari(kayit)
    return sorunlar


def main(argv):
    ayristirici = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    alt = ayristirici.add_subparsers(dest="komut", required=True)
    alt.add_parser("kaydet").add_argument("paket")
    d = alt.add_parser("denetle")
    d.add_argument("kaynak", help="a bundle, or a record of one")
    d.add_argument("--en-dusuk", required=True, help="the oldest macOS the bundle runs on")
    d.add_argument("--kimlik", required=True, help="the bundle identifier")
    secenek = ayristirici.parse_args(argv)
    if secenek.komut == "kaydet":
        json.dump(kaydet(secenek.paket), sys.stdout, indent=1, sort_keys=True)
        return 0
    if os.path.isdir(secenek.kaynak):
        kayit = kaydet(secenek.kaynak)
    else:
        with open(secenek.kaynak, encoding="utf-8") as f:
            kayit = json.load(f)
    sorunlar = denetle(kayit, secenek.en_dusuk, secenek.kimlik)
    for sorun in sorunlar:
        print(sorun)
    print(f"{len(kayit['mach_o'])} Mach-O files, {len(sorunlar)} problems")
    return 1 if sorunlar else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
