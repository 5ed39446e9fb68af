"""Installs the built package on this machine with the system's package manager: the start of
the installed-package tests, whose end (paket_kaldir.py) always removes it again."""
import os
import sys

import paket


def main():
    deb = paket.deb()
    paket.kur(deb)
    surum = paket.kurulu_surum()
    if surum != paket.alan(deb, "Version"):
        sys.exit("kurulu sürüm %s, paketinki %s" % (surum, paket.alan(deb, "Version")))
    if not os.access(paket.KURULU_PROGRAM, os.X_OK):
        sys.exit(paket.KURULU_PROGRAM + " yok")
    print("kuruldu:", os.path.basename(deb))


if __name__ == "__main__":
    main()
