#!/usr/bin/env python3
"""The bundle's Info.plist, as configured: a valid property list that names the application,
its "nevo" links, its icon, Turkish as its development region, the same oldest macOS as
the binary, plain HTTP allowed only to IP addresses and local names, and the Turkish
reasons the system shows when the application first asks for the microphone and camera.
Arguments: the configured file, the bundle identifier, the oldest macOS."""
import plistlib
import sys


def main(yol: str, kimlik: str, en_dusuk: str) -> int:
    with open(yol, "rb") as f:
        metin = f.read()
    if b"${" in metin:
        raise AssertionError("a variable was left unconfigured")
    liste = plistlib.loads(metin)
    beklenen = {
        "CFBundleInfoDictionaryVersion": "6.0",
        "CFBundleDevelopmentRegion": "tr",
        "CFBundleIdentifier": kimlik,
        "CFBundleExecutable": "Nevo",
        "CFBundleName": "Nevo",
        "CFBundlePackageType": "APPL",
        "CFBundleIconFile": "AppIcon",
        "LSMinimumSystemVersion": en_dusuk,
        "NSPrincipalClass": "NSApplication",
    }
    for anahtar, deger in beklenen.items():
        if liste.get(anahtar) != deger:
            raise AssertionError(f"{anahtar} is {liste.get(anahtar)!r}, not {deger!r}")
    semalar = [s for t in liste.get("CFBundleURLTypes", []) for s in t["CFBundleURLSchemes"]]
    if semalar != ["nevo"]:
        raise AssertionError(f"URL schemes {semalar}")
    if liste.get("NSAppTransportSecurity") != {"NSAllowsLocalNetworking": True}:
        raise AssertionError(f"transport security {liste.get('NSAppTransportSecurity')}")
    for anahtar, kelime in (("NSMicrophoneUsageDescription", "mikrofon"),
                            ("NSCameraUsageDescription", "kamera")):
        if kelime not in liste.get(anahtar, ""):
            raise AssertionError(f"{anahtar} does not name the {kelime}: {liste.get(anahtar)!r}")
    print(f"{len(liste)} keys as expected")
    return 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
