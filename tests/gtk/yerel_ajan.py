"""A shell installed in a temporary prefix whose resource directory holds a recording
runtime as `node`: each start writes its arguments, working directory and environment
under share/nevo/kayit/<pid>.*; as the agent it stays up until SIGTERM, as a pairing run
it answers by the code it is given."""
import os
import shutil

import ortam

CALISMA_ZAMANI = r"""#!/bin/sh
kok=$(dirname "$0")
trap 'echo sigterm > "$kok/kayit/$$.sigterm"; [ -n "$!" ] && kill $!; exit 0' TERM
mkdir -p "$kok/kayit"
printf '%s\n' "$0" "$@" > "$kok/kayit/$$.argv.yaziliyor"
pwd > "$kok/kayit/$$.cwd"
env > "$kok/kayit/$$.env"
mv "$kok/kayit/$$.argv.yaziliyor" "$kok/kayit/$$.argv"
if [ "$2" = eslestir ]; then
  case "$3" in
    HATA*) echo "\"reddedildi $3\"" >&2; exit 3 ;;
    BEKLE*) while [ ! -e "$kok/birak" ]; do sleep 0.05; done; echo '"bekledi"'; exit 0 ;;
    SAYI*) printf '1234\n\n'; exit 0 ;;
    IFADE*) echo '[1, 2].length'; exit 0 ;;
    *) echo "Eşleşti $3"; exit 0 ;;
  esac
fi
echo "ajan basladi $$"
# $! names the sleep as soon as it runs: a TERM at any moment ends it too.
sleep 1000 &
wait $!
"""


class Kurulum:
    """bin/nevo (a link to the built shell, or a copy) and share/nevo/{node, ajan/ajan.mjs}."""

    def __init__(self, kok):
        self.kok = kok
        self.ikili = os.path.join(kok, "bin", "nevo")
        self.kaynaklar = os.path.join(kok, "share", "nevo")
        self.kayit = os.path.join(self.kaynaklar, "kayit")
        os.makedirs(os.path.dirname(self.ikili))
        os.makedirs(os.path.join(self.kaynaklar, "ajan"))
        try:
            os.link(ortam.NEVO, self.ikili)
        except OSError:
            shutil.copy2(ortam.NEVO, self.ikili)
        self.node = os.path.join(self.kaynaklar, "node")
        with open(self.node, "w") as f:
            f.write(CALISMA_ZAMANI)
        os.chmod(self.node, 0o755)
        self.betik = os.path.join(self.kaynaklar, "ajan", "ajan.mjs")
        with open(self.betik, "w") as f:
            f.write("// ajan\n")

    def calismalar(self):
        """{pid: argv list} of the runs that have written their record."""
        if not os.path.isdir(self.kayit):
            return {}
        sonuc = {}
        for ad in os.listdir(self.kayit):
            if ad.endswith(".argv"):
                pid = int(ad[:-5])
                sonuc[pid] = self.oku(pid, "argv").splitlines()
        return sonuc

    def ajanlar(self):
        return [pid for pid, argv in self.calismalar().items() if "eslestir" not in argv]

    def oku(self, pid, tur):
        with open(os.path.join(self.kayit, "%d.%s" % (pid, tur)), encoding="utf-8") as f:
            return f.read()

    def var(self, pid, tur):
        return os.path.exists(os.path.join(self.kayit, "%d.%s" % (pid, tur)))

    def ortam(self, pid):
        """The run's environment, less what the recording shell itself adds."""
        satirlar = self.oku(pid, "env").splitlines()
        return sorted(s for s in satirlar if not s.startswith(("PWD=", "SHLVL=", "_=")))


def surec_durumu(pid):
    """The state letter of a process ("Z" for a zombie), or None when it is gone."""
    try:
        with open("/proc/%d/stat" % pid) as f:
            return f.read().rsplit(")", 1)[1].split()[0]
    except (FileNotFoundError, ProcessLookupError):
        # The process may be reaped between opening its record and reading it.
        return None
