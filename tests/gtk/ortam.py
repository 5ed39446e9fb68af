"""The world a Linux integration test runs in: its own X server (Xvfb), window manager
(openbox), D-Bus session, temporary home, loopback web server and the real shell."""
import os
import re
import shutil
import subprocess
import sys
import tempfile
import time
import unittest

KOK = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
sys.path.insert(0, os.path.join(KOK, "resources", "demo"))
from sunucu import Sunucu  # noqa: E402

NEVO = os.environ.get("NEVO_IKILI", os.path.join(KOK, "build", "bin", "nevo"))
FIKSTURLER = os.path.join(KOK, "tests", "fixtures")
EKRAN = (1600, 1000)
SAYFA_RENGI = (244, 239, 230)  # the fixture pages' background
PERDE_RENGI = (5, 5, 8)
# The offline page: its background, its title's and its lines' colours.
CEVRIMDISI_ZEMIN = (5, 5, 7)
BASLIK_RENGI, SATIR_RENGI = (0xe7, 0xe2, 0xd6), (0x8a, 0x8f, 0x9a)


def yakin(renk, hedef, pay=6):
    return all(abs(a - b) <= pay for a, b in zip(renk, hedef))


def bekle(kosul, sure=20.0, aralik=0.05, neden="koşul"):
    son = time.monotonic() + sure
    while True:
        deger = kosul()
        if deger:
            return deger
        if time.monotonic() > son:
            raise AssertionError("beklenen olmadı: " + neden)
        time.sleep(aralik)


class Masaustu:
    """Xvfb + openbox + a private session bus, in a temporary home."""

    def __init__(self, gtk_ayarlari=None):
        self.ev = tempfile.mkdtemp(prefix="nevo-ev-")
        self.ortam = self._ortam()
        self.surecler = []
        self._ayarla(gtk_ayarlari or {})
        self._x_baslat()
        self._dbus_baslat()
        self._pencere_yoneticisi()

    def _pencere_yoneticisi(self):
        """Starts openbox, again if it exits before it has taken the screen."""
        wm = self._baslat(["openbox", "--sm-disable"])

        def hazir():
            nonlocal wm
            if wm.poll() is not None:
                wm = self._baslat(["openbox", "--sm-disable"])
            return self._wm_hazir()
        bekle(hazir, 40, aralik=0.1, neden="openbox")

    def _ortam(self):
        e = {k: v for k, v in os.environ.items()
             if not k.startswith(("DBUS_", "XDG_", "WAYLAND", "GDK_", "GTK_", "DISPLAY", "LC_"))}
        e.update({
            "HOME": self.ev,
            "XDG_CONFIG_HOME": os.path.join(self.ev, ".config"),
            "XDG_DATA_HOME": os.path.join(self.ev, ".local", "share"),
            "XDG_CACHE_HOME": os.path.join(self.ev, ".cache"),
            "XDG_RUNTIME_DIR": os.path.join(self.ev, "calisma"),
            "XDG_DATA_DIRS": "/usr/local/share:/usr/share",
            "GDK_BACKEND": "x11",
            "NO_AT_BRIDGE": "1",
            # Our users' locale writes "40,0" for 40.0: every test runs under both.
            "LANG": os.environ.get("NEVO_TEST_DILI", "C.UTF-8"),
            "ASAN_OPTIONS": "detect_leaks=0:" + os.environ.get("ASAN_OPTIONS", ""),
        })
        for d in ("XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR"):
            os.makedirs(e[d], mode=0o700, exist_ok=True)
        return e

    def _ayarla(self, gtk_ayarlari):
        satirlar = ["[Settings]"] + ["%s=%s" % kv for kv in gtk_ayarlari.items()]
        yol = os.path.join(self.ortam["XDG_CONFIG_HOME"], "gtk-3.0")
        os.makedirs(yol, exist_ok=True)
        with open(os.path.join(yol, "settings.ini"), "w") as f:
            f.write("\n".join(satirlar) + "\n")

    def _x_baslat(self):
        okur, yazar = os.pipe()
        x = subprocess.Popen(
            ["Xvfb", "-displayfd", str(yazar), "-screen", "0", "%dx%dx24" % EKRAN,
             "-nolisten", "tcp", "+extension", "COMPOSITE"],
            pass_fds=[yazar], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        os.close(yazar)
        with os.fdopen(okur) as f:
            numara = f.readline().strip()
        self.surecler.append(x)
        self.ortam["DISPLAY"] = ":" + numara

    def _dbus_baslat(self):
        d = subprocess.Popen(["dbus-daemon", "--session", "--nofork", "--print-address=1"],
                             stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True,
                             env=self.ortam)
        self.ortam["DBUS_SESSION_BUS_ADDRESS"] = d.stdout.readline().strip()
        self.surecler.append(d)

    def _wm_hazir(self):
        return "_NET_SUPPORTING_WM_CHECK(WINDOW)" in self.komut(
            ["xprop", "-root", "_NET_SUPPORTING_WM_CHECK"], hata_yok=True)

    def _baslat(self, komut, **kw):
        s = subprocess.Popen(komut, env=self.ortam, stdout=subprocess.DEVNULL,
                             stderr=subprocess.DEVNULL, **kw)
        self.surecler.append(s)
        return s

    def tercihler(self, satirlar):
        """Writes the shell's preferences file with `satirlar` ("anahtar=deger") before a
        launch."""
        yol = os.path.join(self.ortam["XDG_CONFIG_HOME"], "nevo")
        os.makedirs(yol, exist_ok=True)
        with open(os.path.join(yol, "tercihler.ini"), "w") as f:
            f.write("[Nevo]\n" + "".join("%s\n" % s for s in satirlar))

    def sahte_tarayici(self):
        """Registers a default browser for http and https that records each address it is
        given, one per line; returns the record's path."""
        kayit = os.path.join(self.ev, "tarayici.log")
        betik = os.path.join(self.ev, "tarayici.sh")
        with open(betik, "w") as f:
            f.write('#!/bin/sh\nprintf "%%s\\n" "$1" >> "%s"\n' % kayit)
        os.chmod(betik, 0o755)
        uygulamalar = os.path.join(self.ortam["XDG_DATA_HOME"], "applications")
        os.makedirs(uygulamalar, exist_ok=True)
        with open(os.path.join(uygulamalar, "sahte-tarayici.desktop"), "w") as f:
            f.write("[Desktop Entry]\nType=Application\nName=Sahte\nExec=%s %%u\n"
                    "MimeType=x-scheme-handler/http;x-scheme-handler/https;\n" % betik)
        with open(os.path.join(self.ortam["XDG_CONFIG_HOME"], "mimeapps.list"), "w") as f:
            f.write("[Default Applications]\nx-scheme-handler/http=sahte-tarayici.desktop\n"
                    "x-scheme-handler/https=sahte-tarayici.desktop\n")
        return kayit

    def sahte_servis(self, ad, yol=None, arayuz=None, sablon=None):
        """Starts a python3-dbusmock service on the session bus and returns its mock
        interface (AddMethod, GetCalls, EmitSignal…)."""
        komut = [sys.executable, "-m", "dbusmock", "--session"]
        komut += ["-t", sablon] if sablon else [ad, yol, arayuz]
        self._baslat(komut)
        return self.sahte_nesne(ad, yol or "/" + ad.replace(".", "/"))

    def sahte_nesne(self, ad, yol):
        """The mock interface of one object of a running python3-dbusmock service."""
        import dbus
        hat = dbus.bus.BusConnection(self.ortam["DBUS_SESSION_BUS_ADDRESS"])
        bekle(lambda: hat.name_has_owner(ad), neden=ad)
        return dbus.Interface(hat.get_object(ad, yol), "org.freedesktop.DBus.Mock")

    def komut(self, komut, hata_yok=False):
        r = subprocess.run(komut, env=self.ortam, capture_output=True, text=True)
        if r.returncode != 0 and not hata_yok:
            raise AssertionError("%s: %s" % (" ".join(komut), r.stderr.strip()))
        return r.stdout

    def xdotool(self, *arg):
        return self.komut(["xdotool"] + [str(a) for a in arg])

    def piksel(self, x, y):
        """The (r, g, b) of one screen pixel."""
        cikti = self.komut(["import", "-window", "root", "-crop", "1x1+%d+%d" % (x, y),
                            "-depth", "8", "txt:-"])
        m = re.search(r"\((\d+),(\d+),(\d+)", cikti.splitlines()[-1])
        return tuple(int(v) for v in m.groups())

    def kapat(self):
        for s in reversed(self.surecler):
            if s.stdout:
                s.stdout.close()
            if s.poll() is None:
                s.terminate()
                try:
                    s.wait(5)
                except subprocess.TimeoutExpired:
                    s.kill()
        shutil.rmtree(self.ev, ignore_errors=True)


class Kabuk:
    """One running `nevo` in a desktop."""

    def __init__(self, masaustu, adres, ek_ortam=None, ikili=None):
        self.m = masaustu
        # A GTK or GLib critical in the shell ends it, and so fails the test.
        ortam = dict(masaustu.ortam, NEVO_ADRES=adres, G_DEBUG="fatal-criticals",
                     **(ek_ortam or {}))
        self.hata_dosyasi = tempfile.TemporaryFile()
        self.bitti = False
        self.surec = subprocess.Popen([ikili or NEVO], env=ortam, stdout=subprocess.DEVNULL,
                                      stderr=self.hata_dosyasi)
        self.pencere = bekle(self.pencere_bul, neden="nevo penceresi")

    def pencere_bul(self):
        self.yasiyor_mu()
        cikti = self.m.komut(["xdotool", "search", "--onlyvisible", "--name", "^Nevo$"],
                             hata_yok=True).split()
        return cikti[0] if cikti else None

    def olum_raporu(self):
        """Why the shell is gone (exit status and its standard error), or None while it runs."""
        kod = self.surec.poll()
        if kod is None:
            return None
        return "nevo çıktı (durum %d): %s" % (kod, self.hata_ciktisi())

    def yasiyor_mu(self):
        rapor = self.olum_raporu()
        if rapor:
            raise AssertionError(rapor)

    def hata_ciktisi(self):
        if self.hata_dosyasi.closed:
            return ""
        self.hata_dosyasi.seek(0)
        return self.hata_dosyasi.read().decode(errors="replace")

    def gorunur(self):
        return bool(self.m.komut(["xdotool", "search", "--onlyvisible", "--name", "^Nevo$"],
                                 hata_yok=True).strip())

    def geometri(self):
        """(x, y, width, height) of the window on the screen."""
        cikti = self.m.xdotool("getwindowgeometry", "--shell", self.pencere)
        d = dict(satir.split("=") for satir in cikti.split())
        return int(d["X"]), int(d["Y"]), int(d["WIDTH"]), int(d["HEIGHT"])

    def boyutlanabilir(self):
        """False when the window manager is told min size = max size."""
        ipucu = self.m.komut(["xprop", "-id", self.pencere, "WM_NORMAL_HINTS"])
        en_az = re.search(r"minimum size: (\d+) by (\d+)", ipucu)
        en_cok = re.search(r"maximum size: (\d+) by (\d+)", ipucu)
        return not (en_az and en_cok and en_az.groups() == en_cok.groups())

    def durum(self):
        return self.m.komut(["xprop", "-id", self.pencere, "_NET_WM_STATE", "WM_STATE"])

    def renkler(self, x, y, en, boy):
        """The colours of a rectangle of the window, row by row."""
        gx, gy, _, _ = self.geometri()
        cikti = self.m.komut(["import", "-window", "root", "-crop",
                              "%dx%d+%d+%d" % (en, boy, gx + x, gy + y), "-depth", "8", "txt:-"])
        return [tuple(int(v) for v in m.groups())
                for m in re.finditer(r"\((\d+),(\d+),(\d+)", cikti)]

    def renk(self, x, y):
        """The colour of the window's pixel at (x, y)."""
        gx, gy, _, _ = self.geometri()
        return self.m.piksel(gx + x, gy + y)

    def sayfa_gorunur(self, sure=20.0):
        """Waits until the curtain is gone and the fixture page shows at the bottom left."""
        bekle(lambda: yakin(self.renk(20, self.geometri()[3] - 20), SAYFA_RENGI), sure,
              aralik=0.1, neden="sayfa görünür")

    def cevrimdisi_sayfa_var(self):
        """True while the offline page shows: its background, title and lines."""
        _, _, en, boy = self.geometri()
        ox, oy = en // 2, boy // 2
        renkler = self.renkler(ox - 150, oy - 50, 300, 100)
        return (any(yakin(r, BASLIK_RENGI, 40) for r in renkler)
                and any(yakin(r, SATIR_RENGI, 30) for r in renkler)
                and yakin(self.renk(440, 700), CEVRIMDISI_ZEMIN))

    def tikla(self, x, y, tekrar=1):
        """Clicks at (x, y) inside the window."""
        gx, gy, _, _ = self.geometri()
        self.m.xdotool("mousemove", gx + x, gy + y)
        time.sleep(0.1)
        self.m.xdotool("click", "--repeat", tekrar, "--delay", 80, 1)

    def tus(self, tuslar):
        self.m.xdotool("windowactivate", "--sync", self.pencere)
        self.m.xdotool("key", "--clearmodifiers", tuslar)

    def bitir(self, sure=10):
        if self.surec.poll() is None:
            self.surec.terminate()
        try:
            return self.surec.wait(sure)
        except subprocess.TimeoutExpired:
            self.surec.kill()
            self.surec.wait()
            raise AssertionError("nevo %d s içinde kapanmadı: %s" % (sure, self.hata_ciktisi()))
        finally:
            self.bitti = True
            self.hata_dosyasi.close()


class KabukTesti(unittest.TestCase):
    """A test case with a desktop and a loopback server of the fixture pages."""
    gtk_ayarlari = None

    def setUp(self):
        self.masaustu = Masaustu(self.gtk_ayarlari)
        self.addCleanup(self.masaustu.kapat)
        self.sunucu = Sunucu(FIKSTURLER).arka_planda()
        self.addCleanup(self.sunucu.server_close)
        self.addCleanup(self.sunucu.shutdown)
        self.kabuklar = []

    def kabuk(self, yol="/", adres=None, **kw):
        k = Kabuk(self.masaustu, adres or self.sunucu.adres + yol, **kw)
        self.addCleanup(k.bitir)
        self.kabuklar.append(k)
        return k

    def olay(self, kosul, sure=20.0, neden="sayfa olayı"):
        o = self.sunucu.olay_bekle(kosul, sure)
        if o is None:
            self.fail("%s gelmedi%s" % (neden, self.olu_kabuklar()))
        return o

    def olu_kabuklar(self):
        """The shells that died without the test ending them, reported for a failure."""
        raporlar = [k.olum_raporu() for k in self.kabuklar if not k.bitti]
        return "".join("\n" + r for r in raporlar if r)


def calistir():
    unittest.main(verbosity=2)


class KopruTesti(KabukTesti):
    """A shell showing the bridge fixture page, driven through the server's /komut queue."""

    def kopru(self, **kw):
        k = self.kabuk("/kopru.html", **kw)
        self.olay(lambda o: o["tur"] == "hazir", neden="köprü sayfası hazır")
        return k

    def gonder(self, govde):
        """Has the page post `govde` to the handler "nevo"."""
        self.sunucu.komut_ekle({"govde": govde})

    def cevap(self, istek, sure=20.0):
        """The status object of the reply to request `istek`."""
        return self.olay(lambda o: o["tur"] == "cevap" and o["istek"] == istek, sure,
                         neden="cevap %s" % istek)["durum"]

    def olaylar(self, tur):
        return [o for o in list(self.sunucu.olaylar) if o["tur"] == tur]

    def kurulu_uygulama(self):
        """Installs the desktop file where the desktop finds it: a bundle identifier."""
        yol = os.path.join(self.masaustu.ortam["XDG_DATA_HOME"], "applications")
        os.makedirs(yol, exist_ok=True)
        with open(os.path.join(yol, "app.nevo.Nevo.desktop"), "w") as f:
            f.write("[Desktop Entry]\nType=Application\nName=Nevo\nExec=%s %%u\n" % NEVO)
