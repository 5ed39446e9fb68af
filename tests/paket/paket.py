"""What the package tests share: where the built packages are, installing and removing them
with the system's package manager, and what the package manager knows of them."""
import glob
import os
import subprocess
import sys

sys.path.insert(0, os.path.join(os.path.dirname(os.path.dirname(os.path.abspath(__file__))),
                                "gtk"))

AD = "nevo"
PAKETLER = os.environ.get("NEVO_PAKETLER", "")
KURULU_PROGRAM = "/usr/bin/nevo"
# The system's own data directories, where the installed package's entry is found.
SISTEM_VERI_DIZINLERI = "/usr/local/share:/usr/share"


def yetkili(komut):
    """`komut` as root: directly when the tests run as root (as in CI), else through sudo
    without a password prompt."""
    return komut if os.geteuid() == 0 else ["sudo", "-n"] + komut


def calistir(komut, **kw):
    r = subprocess.run(komut, capture_output=True, text=True, **kw)
    if r.returncode != 0:
        raise AssertionError("%s: durum %d\n%s%s" % (" ".join(komut), r.returncode, r.stdout,
                                                      r.stderr))
    return r.stdout


def deb(klasor=PAKETLER):
    """The one package file in `klasor`."""
    bulunanlar = glob.glob(os.path.join(klasor, "%s_*.deb" % AD))
    if len(bulunanlar) != 1:
        raise AssertionError("%s içinde tek paket yok: %s" % (klasor, bulunanlar))
    return bulunanlar[0]


def alan(deb_yolu, ad):
    """A field of the package's control data."""
    return calistir(["dpkg-deb", "--field", deb_yolu, ad]).strip()


def kur(deb_yolu):
    """Installs (or upgrades to) the package file without its recommendations, as a user's
    `apt-get install ./nevo_….deb` does, so nothing else on the machine changes."""
    calistir(yetkili(["apt-get", "install", "-y", "-qq", "--no-install-recommends",
                      os.path.abspath(deb_yolu)]),
             env=dict(os.environ, DEBIAN_FRONTEND="noninteractive"))


def kurulu_surum():
    """The installed version, or None."""
    r = subprocess.run(["dpkg-query", "--show", "--showformat=${Status} ${Version}", AD],
                       capture_output=True, text=True)
    if r.returncode != 0 or not r.stdout.startswith("install ok installed "):
        return None
    return r.stdout.rsplit(" ", 1)[1]


def dosyalari():
    """The paths the installed package owns."""
    return [s for s in calistir(["dpkg-query", "--listfiles", AD]).splitlines()
            if s.startswith("/")]


def kaldir():
    calistir(yetkili(["apt-get", "remove", "-y", "-qq", AD]),
             env=dict(os.environ, DEBIAN_FRONTEND="noninteractive"))
