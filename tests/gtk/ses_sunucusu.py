"""A sound server with no sound card: PulseAudio playing into a null sink on the test's
private runtime directory. It tells which streams started, with their event ids."""
import os
import re
import subprocess

from ortam import bekle


class SesSunucusu:
    def __init__(self, masaustu):
        self.masaustu = masaustu
        self._bilinen = {}
        masaustu._baslat(["pulseaudio", "-n", "--daemonize=no", "--exit-idle-time=-1",
                          "--disable-shm=yes", "-L", "module-null-sink sink_name=sessiz",
                          "-L", "module-native-protocol-unix"])
        bekle(lambda: self._pactl("info", hata_yok=True), neden="ses sunucusu")
        self._kayit = os.path.join(masaustu.ev, "ses-olaylari.log")
        with open(self._kayit, "w") as cikti:
            masaustu._baslat(["env", "LC_ALL=C.UTF-8", "stdbuf", "-oL", "pactl", "subscribe"],
                             stdout=cikti)
        # pactl prints nothing until it listens: another client it reports proves it does.
        bekle(self._dinliyor, neden="pactl subscribe")

    def _pactl(self, *arg, hata_yok=False):
        # pactl speaks the user's language; what is read here is its English.
        r = subprocess.run(["pactl"] + list(arg), env=dict(self.masaustu.ortam, LC_ALL="C.UTF-8"),
                           capture_output=True, text=True)
        if r.returncode != 0 and not hata_yok:
            raise AssertionError("pactl %s: %s" % (" ".join(arg), r.stderr.strip()))
        return r.returncode == 0 and r.stdout

    def _dinliyor(self):
        self._pactl("info")
        return "Event 'new' on client #" in self._olaylar()

    def _olaylar(self):
        with open(self._kayit) as f:
            return f.read()

    def akislar(self):
        """(event id, description) of each stream started so far, in order. A stream lives as
        long as its sound plays, so one seen while waiting for it still has its properties."""
        for numara in map(int, re.findall(r"Event 'new' on sink-input #(\d+)", self._olaylar())):
            if numara not in self._bilinen:
                self._bilinen[numara] = self._ozellikler(numara)
        return [self._bilinen[n] for n in sorted(self._bilinen)]

    def _ozellikler(self, numara):
        bolum, ozellikler = None, {}
        for satir in (self._pactl("list", "sink-inputs", hata_yok=True) or "").splitlines():
            if satir.startswith("Sink Input #"):
                bolum = int(satir.split("#", 1)[1])
            elif bolum == numara and " = " in satir:
                ad, deger = satir.strip().split(" = ", 1)
                ozellikler[ad] = deger.strip('"')
        return ozellikler.get("event.id"), ozellikler.get("event.description")
