#!/usr/bin/env python3
"""The committed application icon for macOS is a well-formed icon file holding every size
that scripts/simge_uret.py writes, each a PNG of its stated edge."""
import pathlib
import struct
import sys

KOK = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(KOK / "scripts"))
from simge_uret import GORUNTULER, ICNS  # noqa: E402

PNG_IMZASI = b"\x89PNG\r\n\x1a\n"


def goruntuler(veri: bytes) -> list[tuple[bytes, bytes]]:
    if veri[:4] != b"icns":
        raise AssertionError("no icns header")
    (toplam,) = struct.unpack(">I", veri[4:8])
    if toplam != len(veri):
        raise AssertionError(f"header says {toplam} bytes, file has {len(veri)}")
    sonuc, i = [], 8
    while i < len(veri):
        tur, (uzunluk,) = veri[i:i + 4], struct.unpack(">I", veri[i + 4:i + 8])
        if uzunluk < 8 or i + uzunluk > len(veri):
            raise AssertionError(f"entry {tur!r} runs past the end")
        sonuc.append((tur, veri[i + 8:i + uzunluk]))
        i += uzunluk
    return sonuc


def main() -> int:
    bulunan = goruntuler(ICNS.read_bytes())
    if [t for t, _ in bulunan] != [t for t, _ in GORUNTULER]:
        raise AssertionError(f"types {[t for t, _ in bulunan]} instead of the expected ones")
    for (tur, png), (_, kenar) in zip(bulunan, GORUNTULER):
        if png[:8] != PNG_IMZASI or png[12:16] != b"IHDR":
            raise AssertionError(f"{tur!r} is not a PNG")
        en, boy = struct.unpack(">II", png[16:24])
        if (en, boy) != (kenar, kenar):
            raise AssertionError(f"{tur!r} is {en}x{boy}, not {kenar}x{kenar}")
    print(f"{len(bulunan)} images, {ICNS.stat().st_size} bytes")
    return 0


if __name__ == "__main__":
    sys.exit(main())
