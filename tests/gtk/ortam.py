"""The world a Linux integration test runs in: its own X server (Xvfb), window manager
(openbox), D-Bus session, temporary home, loopback web server and the real shell."""
import json
import os
import re
import shutil
import signal
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
DEMO = os.path.join(KOK, "resources", "demo")
DEMO_ZEMINI = (0x14, 0x13, 0x1a)  # the demo's background
SIZINTI_LISTESI = os.path.join(KOK, "tests", "gtk", "sizinti.supp")
EKRAN = (1600, 1000)
SAYFA_RENGI = (244, 239, 230)  # the fixture pages' background
PERDE_RENGI = (5, 5, 8)
# The offline page: its background, its title's and its lines' colours.
CEVRIMDISI_ZEMIN = (5, 5, 7)
BASLIK_RENGI, SATIR_RENGI = (0xe7, 0xe2, 0xd6), (0x8a, 0x8f, 0x9a)
# A vivid colour: its channels lie this far apart. Text drawn in grey never counts so many of
# them (its edges may be tinted); the curtain's icon has thousands.
CANLI_RENK_FARKI, CANLI_RENK_SAYISI = 120, 200


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


# What a shell's standard error must never hold: a sanitizer's report, a critical, or a
# warning or error logged through GLib (by the shell, GTK or the engine's libraries).
HATA_KALIPLARI = [re.compile(k) for k in (
    r"ERROR: (AddressSanitizer|LeakSanitizer|UndefinedBehaviorSanitizer)",
    r"Sanitizer:DEADLYSIGNAL",
    r"runtime error: ",
    r"^SUMMARY: ",
    r"CRITICAL",
    r"(WARNING|ERROR) \*\*",
)]
# Warnings the shell does not cause, each allowed by a pattern that matches that warning
# alone; any other warning fails the test.
IZINLI_UYARILAR = [re.compile(k) for k in (
    # GTK's file chooser asks each mount for its free space, the document portal's too (under
    # the test's runtime directory), which the portal refuses to root; GIO's part of the
    # message is in the run's language.
    r"Gtk-WARNING \*\*: [\d:.]+: Failed to measure available space: "
    r"(Error getting filesystem info for )?/tmp/nevo-ev-\w+/calisma/doc[: ]",
)]


def hata_satirlari(cikti):
    """The lines of a shell's standard error that show it went wrong."""
    return [s for s in cikti.splitlines()
            if any(k.search(s) for k in HATA_KALIPLARI)
            and not ("WARNING" in s and any(k.search(s) for k in IZINLI_UYARILAR))]


def son_denetle(ad, kod, beklenen, cikti):
    """Fails unless a shell (`ad`) ended with status `beklenen` (minus a signal's number for
    a kill) and its standard error `cikti` shows nothing went wrong."""
    satirlar = hata_satirlari(cikti)
    if kod != beklenen or satirlar:
        raise AssertionError("%s durum %s ile bitti (beklenen %s)%s\n--- standart hata ---\n%s"
                             % (ad, kod, beklenen, "".join("\n  " + s for s in satirlar),
                                cikti))


def on_yukleme(ortam):
    """The shell's environment with NEVO_TEST_ON_YUKLEME, when the run sets it, as the
    shell's LD_PRELOAD: a way to prove that the checks at a shell's end fail a test."""
    ek = os.environ.get("NEVO_TEST_ON_YUKLEME")
    return dict(ortam, LD_PRELOAD=ek) if ek else ortam


def on_yuklemeli_ikili(klasor, ikili):
    """What a desktop entry runs for the shell `ikili`: the shell itself, or with
    NEVO_TEST_ON_YUKLEME a script in `klasor` that runs it with that preload."""
    ek = os.environ.get("NEVO_TEST_ON_YUKLEME")
    if not ek:
        return ikili
    betik = os.path.join(klasor, "on-yuklemeli-nevo")
    with open(betik, "w") as f:
        f.write('#!/bin/sh\nLD_PRELOAD="%s" exec "%s" "$@"\n' % (ek, ikili))
    os.chmod(betik, 0o755)
    return betik


# What the installed package puts under a data directory: entries named after the
# application id, its resource directory, and the caches the package's scripts refresh.
PAKET_ONEKI = "app.nevo.Nevo"
PAKET_DIZINI = "nevo"
ONBELLEKLER = {"mimeinfo.cache", "icon-theme.cache"}


def _paketin_mi(goreli, ad):
    return (ad.startswith(PAKET_ONEKI) or ad in ONBELLEKLER
            or (goreli == "" and ad == PAKET_DIZINI))


def _derine_iner(goreli):
    """The directories that can hold a file of the package: they are copied as directories of
    links, everything else is one link."""
    parcalar = goreli.split("/")
    return (goreli in ("applications", "icons", "icons/hicolor", "metainfo")
            or (parcalar[:2] == ["icons", "hicolor"] and len(parcalar) == 3)
            or (parcalar[:2] == ["icons", "hicolor"] and parcalar[3:] == ["apps"]))


def _aynala(kaynak, hedef, goreli=""):
    os.makedirs(hedef, exist_ok=True)
    for ad in sorted(os.listdir(kaynak)):
        if _paketin_mi(goreli, ad):
            continue
        yol = os.path.join(kaynak, ad)
        alt = os.path.join(goreli, ad) if goreli else ad
        if os.path.isdir(yol) and not os.path.islink(yol) and _derine_iner(alt):
            _aynala(yol, os.path.join(hedef, ad), alt)
        else:
            os.symlink(yol, os.path.join(hedef, ad))


def ozel_veri_dizinleri(kok, dizinler=("/usr/local/share", "/usr/share")):
    """The system's data directories as links under `kok`, without anything the Nevo package
    installs: a package installed on this machine (by the package's own test or by anyone)
    never changes what a test sees. The value for XDG_DATA_DIRS."""
    yollar = []
    for i, dizin in enumerate(dizinler):
        if os.path.isdir(dizin):
            hedef = os.path.join(kok, "veri-%d" % i)
            _aynala(dizin, hedef)
            yollar.append(hedef)
    return ":".join(yollar)


class Masaustu:
    """Xvfb + openbox + a private session bus, in a temporary home."""

    def __init__(self, gtk_ayarlari=None):
        self.ev = tempfile.mkdtemp(prefix="nevo-ev-")
        self.ortam = self._ortam()
        self.surecler = []
        # Processes the test leaves running on purpose (a killed shell's children), by id and
        # by a part of their command line.
        self.birakilanlar = set()
        self.birakilan_komutlar = []
        try:
            self._dil_denetle()
            self._ayarla(gtk_ayarlari or {})
            self._x_baslat()
            self._dbus_baslat()
            self._pencere_yoneticisi()
        except BaseException:
            self.kapat()
            raise

    def _dil_denetle(self):
        """The Turkish runs really run in Turkish: the locale exists, and a program given the
        test's environment writes a decimal comma (it would write a point in C)."""
        r = subprocess.run(["locale", "-k", "decimal_point"], env=self.ortam,
                           capture_output=True, text=True)
        beklenen = '","' if self.ortam["LANG"].startswith("tr_") else '"."'
        if r.stderr or r.stdout.strip() != "decimal_point=" + beklenen:
            raise AssertionError("%s yerel ayarı etkin değil: %s %s"
                                 % (self.ortam["LANG"], r.stdout.strip(), r.stderr.strip()))

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
            "XDG_DATA_DIRS": ozel_veri_dizinleri(os.path.join(self.ev, "sistem")),
            "GDK_BACKEND": "x11",
            "NO_AT_BRIDGE": "1",
            # Our users' locale writes "40,0" for 40.0: every test runs under both.
            "LANG": os.environ.get("NEVO_TEST_DILI", "C.UTF-8"),
            # The shell ends by itself at the end of each test, so its leaks are checked;
            # sizinti.supp lists those of the libraries under it.
            "ASAN_OPTIONS": "detect_leaks=1:" + os.environ.get("ASAN_OPTIONS", ""),
            "LSAN_OPTIONS": "suppressions=%s:print_suppressions=0:" % SIZINTI_LISTESI
                            + os.environ.get("LSAN_OPTIONS", ""),
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
            pass_fds=[yazar], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
            env=self.ortam)
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
        kw.setdefault("stdout", subprocess.DEVNULL)
        s = subprocess.Popen(komut, env=self.ortam, stderr=subprocess.DEVNULL, **kw)
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

    def pano_sahibi(self, tur, yol):
        """Puts the file `yol` on the clipboard as type `tur` alone, owned by an xclip that
        stays until another owner takes the clipboard or the desktop goes."""
        self._baslat(["xclip", "-quiet", "-selection", "clipboard", "-t", tur, "-i", yol])
        self._panoda(tur)

    def pano_metni(self, metin):
        """Puts `metin` on the clipboard as a toolkit's text owner offers it (every text type),
        owned until another owner takes the clipboard or the desktop goes."""
        self._baslat([sys.executable, os.path.join(KOK, "tests", "gtk", "metin_panosu.py"),
                      metin])
        self._panoda("UTF8_STRING")

    def _panoda(self, tur):
        bekle(lambda: tur in self.komut(["xclip", "-o", "-selection", "clipboard", "-t",
                                         "TARGETS"], hata_yok=True).split(),
              neden="panoda " + tur)

    def sahte_servis(self, ad, yol=None, arayuz=None, sablon=None, parametreler=None):
        """Starts a python3-dbusmock service on the session bus and returns its mock
        interface (AddMethod, GetCalls, EmitSignal…); a template gets `parametreler`."""
        komut = [sys.executable, "-m", "dbusmock", "--session"]
        komut += ["-t", sablon] if sablon else [ad, yol, arayuz]
        if parametreler is not None:
            komut += ["-p", json.dumps(parametreler)]
        self._baslat(komut)
        return self.sahte_nesne(ad, yol or "/" + ad.replace(".", "/"))

    def sahte_nesne(self, ad, yol):
        """The mock interface of one object of a running python3-dbusmock service."""
        import dbus
        hat = dbus.bus.BusConnection(self.ortam["DBUS_SESSION_BUS_ADDRESS"])
        bekle(lambda: hat.name_has_owner(ad), neden=ad)
        return dbus.Interface(hat.get_object(ad, yol), "org.freedesktop.DBus.Mock")

    def dbus_turu(self, sayi=1):
        """`sayi` round trips through the shell's session-bus connection: the shell answers
        each call on its main loop, so what it sent on the bus before the answer reaches each
        service before any later call of the test; each round trip lets one more step of a
        chain of calls (a call made when an answer comes) through."""
        import dbus
        hat = dbus.bus.BusConnection(self.ortam["DBUS_SESSION_BUS_ADDRESS"])
        try:
            for _ in range(sayi):
                hat.call_blocking("app.nevo.Nevo", "/app/nevo/Nevo", "org.gtk.Actions", "List",
                                  "", [])
        finally:
            hat.close()

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

    def dunyadakiler(self):
        """{pid: command line} of the live processes of this desktop: every process the test
        starts carries the desktop's home in its environment, and so do their children."""
        isaret = ("HOME=" + self.ev).encode()
        sonuc = {}
        for ad in os.listdir("/proc"):
            if not ad.isdigit() or int(ad) == os.getpid():
                continue
            try:
                with open("/proc/%s/environ" % ad, "rb") as f:
                    if isaret not in f.read().split(b"\0"):
                        continue
                with open("/proc/%s/stat" % ad) as f:
                    if f.read().rsplit(")", 1)[1].split()[0] == "Z":
                        continue
                with open("/proc/%s/cmdline" % ad, "rb") as f:
                    sonuc[int(ad)] = f.read().replace(b"\0", b" ").decode(errors="replace")
            except OSError:  # gone meanwhile
                continue
        return sonuc

    def komutlar_bitsin(self, parca):
        """Waits until no process of the desktop has `parca` in its command line."""
        bekle(lambda: not [k for k in self.dunyadakiler().values() if parca in k],
              neden="%s bitti" % parca)

    def birak(self, pid):
        """Tells the cleanup that the test leaves process `pid` running on purpose."""
        self.birakilanlar.add(pid)

    def komutu_birak(self, parca):
        """Tells the cleanup that the test leaves running on purpose the processes whose
        command line holds `parca`."""
        self.birakilan_komutlar.append(parca)

    def kapat(self):
        try:
            for s in reversed(self.surecler):
                if s.stdout:
                    s.stdout.close()
                if s.poll() is None:
                    s.terminate()
                    try:
                        s.wait(5)
                    except subprocess.TimeoutExpired:
                        s.kill()
                        s.wait()
            self._artiklari_temizle()
        finally:
            shutil.rmtree(self.ev, ignore_errors=True)

    def _artiklari_temizle(self):
        """Kills what is still running of the desktop once its own processes are gone (a
        moment is given to those that end on their own when the bus or the display goes);
        fails for any the test did not say it leaves behind."""
        try:
            bekle(lambda: not self.dunyadakiler(), 5, aralik=0.1)
        except AssertionError:
            pass
        kalanlar = self.dunyadakiler()
        for pid in kalanlar:
            try:
                os.kill(pid, signal.SIGKILL)
            except ProcessLookupError:
                pass
        habersiz = {p: k for p, k in kalanlar.items() if p not in self.birakilanlar
                    and not any(parca in k for parca in self.birakilan_komutlar)}
        if habersiz:
            raise AssertionError("test bittiğinde hâlâ çalışan süreçler (öldürüldü):"
                                 + "".join("\n  %d %s" % pk for pk in sorted(habersiz.items())))


class Kabuk:
    """One running `nevo` in a desktop. Its end is checked: by default the harness ends it
    with SIGTERM and it exits with status 0; a test that ends it otherwise says so
    (`oldur`, `beklenen_son`)."""

    def __init__(self, masaustu, adres, ek_ortam=None, ikili=None, x_penceresi=True):
        self.m = masaustu
        # A GTK or GLib critical in the shell ends it, and so fails the test.
        ortam = on_yukleme(dict(masaustu.ortam, NEVO_ADRES=adres, G_DEBUG="fatal-criticals",
                                **(ek_ortam or {})))
        self.hata_dosyasi = tempfile.TemporaryFile()
        self.bitti = False
        self.beklenen_son = 0
        self.son = None
        self.surec = subprocess.Popen([ikili or NEVO], env=ortam, stdout=subprocess.DEVNULL,
                                      stderr=self.hata_dosyasi)
        self.pencere = None
        if x_penceresi:
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
        """True while the offline page shows: its background, title and lines, all grey.
        The curtain is as dark, and its light spinner has shades of both text colours; its
        icon's vivid colours tell it apart."""
        _, _, en, boy = self.geometri()
        ox, oy = en // 2, boy // 2
        renkler = self.renkler(ox - 150, oy - 50, 300, 100)
        canli = sum(1 for r in renkler if max(r) - min(r) > CANLI_RENK_FARKI)
        return (canli < CANLI_RENK_SAYISI
                and any(yakin(r, BASLIK_RENGI, 40) for r in renkler)
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

    def oldur(self):
        """Kills the shell (SIGKILL) as the test's own doing: that is then its expected end,
        and the children it had, which a kill leaves running, are the test's to leave."""
        for pid in torunlar(self.surec.pid):
            self.m.birak(pid)
        self.beklenen_son = -signal.SIGKILL
        self.surec.kill()
        return self.bitir()

    def bitir(self, sure=10):
        """Ends the shell with SIGTERM unless it has ended; fails unless it ended as expected
        within `sure` s with nothing wrong on its standard error. Its status."""
        if self.bitti:
            return self.son
        self.bitti = True
        if self.surec.poll() is None:
            self.surec.terminate()
        try:
            self.son = self.surec.wait(sure)
        except subprocess.TimeoutExpired:
            self.surec.kill()
            self.surec.wait()
            cikti = self.hata_ciktisi()
            self.hata_dosyasi.close()
            raise AssertionError("nevo %d s içinde kapanmadı: %s" % (sure, cikti))
        cikti = self.hata_ciktisi()
        self.hata_dosyasi.close()
        son_denetle("nevo", self.son, self.beklenen_son, cikti)
        return self.son


def torunlar(kok):
    """The process ids descending from `kok`."""
    cocuklar = {}
    for ad in os.listdir("/proc"):
        if not ad.isdigit():
            continue
        try:
            with open("/proc/%s/stat" % ad) as f:
                ust = int(f.read().rsplit(")", 1)[1].split()[1])
        except (OSError, IndexError, ValueError):
            continue
        cocuklar.setdefault(ust, []).append(int(ad))
    sonuc, sira = [], [kok]
    while sira:
        for c in cocuklar.get(sira.pop(), []):
            sonuc.append(c)
            sira.append(c)
    return sonuc


def calistir_ve_denetle(masaustu, komut, ek_ortam=None, beklenen=0, sure=60, nevo=True):
    """Runs a `nevo` that ends by itself (a second launch, a refused address) in the desktop,
    or (`nevo` false) a program that runs one and ends with its status; fails unless it ends
    with status `beklenen` and a clean standard error. The finished process (stderr as
    text)."""
    ortam = dict(masaustu.ortam, **(ek_ortam or {}))
    r = subprocess.run(komut, env=on_yukleme(ortam) if nevo else ortam,
                       stdout=subprocess.DEVNULL, stderr=subprocess.PIPE, timeout=sure)
    r.stderr = r.stderr.decode(errors="replace")
    son_denetle(repr(komut)[:200], r.returncode, beklenen, r.stderr)
    return r


class TestSunucusu(Sunucu):
    """The fixture server; it also keeps, for the whole test, the language each page said
    it runs in as it loaded (navigator.language)."""

    def __init__(self, *arg, **kw):
        super().__init__(*arg, **kw)
        self.diller = []

    def olay_ekle(self, olay):
        if isinstance(olay.get("dil"), str):
            self.diller.append(olay["dil"])
        super().olay_ekle(olay)


class KabukTesti(unittest.TestCase):
    """A test case with a desktop and a loopback server of the fixture pages. Its cleanup
    ends each shell and checks how it ended before the desktop goes, then checks that
    nothing the test started is left running."""
    gtk_ayarlari = None
    sunucu_koku = FIKSTURLER

    def masaustu_kur(self):
        return Masaustu(self.gtk_ayarlari)

    def setUp(self):
        self.masaustu = self.masaustu_kur()
        self.addCleanup(self.masaustu.kapat)
        self.sunucu = TestSunucusu(self.sunucu_koku).arka_planda()
        self.addCleanup(self.sunucu.server_close)
        self.addCleanup(self.sunucu.shutdown)
        self.addCleanup(self.dil_denetle)
        self.kabuklar = []

    def dil_denetle(self):
        """Each page that loaded ran in the test's language: Turkish in the Turkish runs."""
        onek = re.split(r"[_.]", self.masaustu.ortam["LANG"])[0]
        yanlis = [d for d in self.sunucu.diller if not d.startswith(onek)]
        self.assertEqual(yanlis, [], "sayfa dili %s* değil" % onek)

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

    def fare_turu(self, k, x=440, y=700):
        """A click on the page at (x, y), waited for until the page reports it: by then the
        shell has handled every earlier input."""
        def tiklamalar():
            return len([o for o in list(self.sunucu.olaylar) if o["tur"] == "fare"])
        onceki = tiklamalar()
        k.tikla(x, y)
        bekle(lambda: tiklamalar() > onceki, neden="sayfa tıklamayı aldı")

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
        hazir = self.olay(lambda o: o["tur"] == "hazir", neden="köprü sayfası hazır")
        self.assertIn("dil", hazir, "sayfa dilini bildirir")
        return k

    def gonder(self, govde):
        """Has the page post `govde` to the handler "nevo"."""
        self.sunucu.komut_ekle({"govde": govde})

    def kopru_turu(self, istek):
        """A round trip through the bridge (a status request `istek` and its reply): the page's
        beacons leave in order, so whatever the shell sent the page before is recorded by then.
        The status."""
        self.gonder({"tur": "masaustu", "istek": istek, "eylem": "durum"})
        return self.cevap(istek)

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


class DemoTesti(KabukTesti):
    """A shell showing the demo application, which logs every call of the shell into the page
    and sends each log line to the server."""
    sunucu_koku = DEMO

    def demo_gorunur_ve_cevaplar(self, k):
        """Waits until the demo shows (the curtain gone) and the shell has answered the
        demo's status request; the status."""
        bekle(lambda: yakin(k.renk(20, k.geometri()[3] - 20), DEMO_ZEMINI), 30, aralik=0.1,
              neden="tanıtım sayfası görünür")
        onek = "← nevoMasaustuCevap("
        satir = self.olay(lambda o: o["tur"] == "demo" and o["satir"].startswith(onek),
                          neden="durum cevabı")["satir"]
        istek, durum = json.loads("[" + satir[len(onek):-1] + "]")
        self.assertGreater(istek, 0)
        return json.loads(durum)
