#!/usr/bin/env python3
"""Writes resources/AppIcon.icns, the macOS application icon, from resources/AppIcon.svg.

Run it after changing the SVG and commit both files:
    python3 scripts/simge_uret.py
Needs rsvg-convert (Debian: librsvg2-bin). The icon file holds one PNG per size macOS asks
for, each under its own four-letter type, behind the "icns" header and total length.
"""
import pathlib
import struct
import subprocess
import tempfile

KOK = pathlib.Path(__file__).resolve().parent.parent
SVG = KOK / "resources" / "AppIcon.svg"
ICNS = KOK / "resources" / "AppIcon.icns"

# Type and edge in pixels of every image in the file.
GORUNTULER = [
    (b"icp4", 16), (b"icp5", 32), (b"icp6", 64), (b"ic07", 128), (b"ic08", 256),
    (b"ic09", 512), (b"ic10", 1024), (b"ic11", 32), (b"ic12", 64), (b"ic13", 256),
    (b"ic14", 512),
]


def png(kenar: int, dizin: pathlib.Path) -> bytes:
    hedef = dizin / f"{kenar}.png"
    if not hedef.exists():
        subprocess.run(["rsvg-convert", "-w", str(kenar), "-h", str(kenar), "-o", str(hedef),
                        str(SVG)], check=True)
    return hedef.read_bytes()


def main() -> None:
    with tempfile.TemporaryDirectory() as gecici:
        dizin = pathlib.Path(gecici)
        govde = b"".join(tur + struct.pack(">I", 8 + len(veri)) + veri
                         for tur, veri in ((t, png(k, dizin)) for t, k in GORUNTULER))
    ICNS.write_bytes(b"icns" + struct.pack(">I", 8 + len(govde)) + govde)


if __name__ == "__main__":
    main()
