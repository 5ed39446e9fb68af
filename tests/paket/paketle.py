"""Builds the Debian package from a second build of the program without sanitizers: Release,
the program's target only, then cpack. The package file is the only one left in the output
folder. Usage: paketle.py SOURCE BUILD OUTPUT VERSION"""
import glob
import os
import shutil
import subprocess
import sys


def calistir(komut):
    """Runs a build step quietly; its output is shown when it fails."""
    r = subprocess.run(komut, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
    if r.returncode != 0:
        sys.exit("%s: durum %d\n%s" % (" ".join(komut), r.returncode, r.stdout))


def main():
    kaynak, insa, cikti, surum = sys.argv[1:5]
    calistir(["cmake", "-S", kaynak, "-B", insa, "-G", "Ninja", "-DCMAKE_BUILD_TYPE=Release",
              "-DNEVO_TESTS=OFF", "-DNEVO_SURUM=" + surum])
    calistir(["cmake", "--build", insa, "--target", "nevo"])
    shutil.rmtree(cikti, ignore_errors=True)
    os.makedirs(cikti)
    calistir(["cpack", "-G", "DEB", "-B", cikti, "--config",
              os.path.join(insa, "CPackConfig.cmake")])
    shutil.rmtree(os.path.join(cikti, "_CPack_Packages"), ignore_errors=True)
    paketler = glob.glob(os.path.join(cikti, "nevo_%s_*.deb" % surum))
    if len(paketler) != 1:
        sys.exit("beklenen tek paket yok: %s" % os.listdir(cikti))
    print(paketler[0])


if __name__ == "__main__":
    main()
