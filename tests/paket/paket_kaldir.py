"""Removes the installed package, whatever the tests before did, and checks that no file of
the package is left behind while the user's own data under the home stays."""
import os
import shutil
import sys
import tempfile

import paket


def main():
    if paket.kurulu_surum() is None:
        print("paket kurulu değil")
        return
    dosyalar = paket.dosyalari()
    # The user's data, as a shell leaves it under a home: removing the package is not
    # removing the user's files.
    ev = tempfile.mkdtemp(prefix="nevo-kaldirma-ev-")
    try:
        kullanici = [os.path.join(ev, ".config", "nevo", "tercihler.ini"),
                     os.path.join(ev, ".config", "autostart", "app.nevo.Nevo.desktop"),
                     os.path.join(ev, ".local", "share", "Nevo", "ajan.log")]
        for yol in kullanici:
            os.makedirs(os.path.dirname(yol), exist_ok=True)
            with open(yol, "w") as f:
                f.write("kullanıcının\n")
        paket.kaldir()
        sorunlar = []
        if paket.kurulu_surum() is not None:
            sorunlar.append("paket hâlâ kurulu")
        # Directories shared with other packages (/usr/bin, the icon theme's) stay; the
        # package's own are checked below.
        kalanlar = [y for y in dosyalar if os.path.lexists(y) and not os.path.isdir(y)]
        sorunlar += ["kaldı: " + y for y in kalanlar]
        for dizin in ("/usr/share/nevo", "/usr/share/doc/nevo"):
            if os.path.lexists(dizin):
                sorunlar.append("kaldı: " + dizin)
        sorunlar += ["kullanıcının dosyası gitti: " + y for y in kullanici
                     if not os.path.isfile(y)]
    finally:
        shutil.rmtree(ev, ignore_errors=True)
    for s in sorunlar:
        print(s)
    if sorunlar:
        sys.exit(1)
    print("kaldırıldı, %d dosyadan iz yok" % len(dosyalar))


if __name__ == "__main__":
    main()
