"""Every group of tests is registered: fails when CTest's list of a build lacks one, so a group
never disappears from a run without notice (a tool it needs missing, a file not added).
Usage: gruplar.py CTEST BUILD_DIR SOURCE_DIR"""
import glob
import json
import os
import re
import subprocess
import sys

CTEST, INSA, KAYNAK = sys.argv[1:4]


def kayitli_testler():
    """{name: (command, environment)} of the tests registered in the build."""
    r = subprocess.run([CTEST, "--test-dir", INSA, "--show-only=json-v1"], capture_output=True,
                       text=True, check=True)
    testler = {}
    for t in json.loads(r.stdout)["tests"]:
        ortam = next((p["value"] for p in t.get("properties", [])
                      if p["name"] == "ENVIRONMENT"), [])
        testler[t["name"]] = (t.get("command", []), ortam)
    return testler


def programla(testler, program):
    """The tests run by the test program `program` (directly, under a helper, or by a script
    given its path)."""
    return [ad for ad, (komut, _) in testler.items()
            if any(os.path.basename(k) == program for k in komut)]


def fuzz_hedefleri():
    with open(os.path.join(KAYNAK, "fuzz", "hedefler.cmake")) as f:
        liste = re.search(r"set\(NEVO_FUZZ_HEDEFLERI(.*?)\)", f.read(), re.S).group(1)
    return [s for s in liste.split() if not s.startswith("#")]


# The scripts of tests/gtk that need no display, each run once under its own test name.
EKRANSIZ_BETIKLER = {"test_kurulum.py": "kurulum_masaustu_girdisi",
                     "test_komut_satiri.py": "komut_satiri_surum_ve_yardim"}


def gtk_betikleri():
    """The integration scripts that run under a display."""
    return sorted(os.path.basename(y)[len("test_"):-len(".py")]
                  for y in glob.glob(os.path.join(KAYNAK, "tests", "gtk", "test_*.py"))
                  if os.path.basename(y) not in EKRANSIZ_BETIKLER)


def eksikler():
    testler = kayitli_testler()
    sorunlar = ["derlenmemiş test programı: " + ad for ad in testler if ad.endswith("_NOT_BUILT")]
    for program in ("nevo_core_tests", "nevo_glib_tests", "nevo_gsettings_tests",
                    "nevo_portal_tests", "nevo_durum_ogesi_tests", "nevo_dosya_tests",
                    "nevo_ekran_tests"):
        if not programla(testler, program):
            sorunlar.append("testi olmayan test programı: " + program)
    for ad in gtk_betikleri():
        for test, dil in (("gtk_" + ad, "C.UTF-8"), ("gtk_%s_tr_TR" % ad, "tr_TR.UTF-8")):
            if test not in testler:
                sorunlar.append("ekranlı test yok: " + test)
            elif "NEVO_TEST_DILI=" + dil not in testler[test][1]:
                sorunlar.append("%s %s dilinde çalışmıyor" % (test, dil))
    tekler = list(EKRANSIZ_BETIKLER.values())
    tekler += ["gelistirme_ajani", "web_tur_denetimi", "web_takimi", "bicim",
               "mac_tur_denetimi", "mac_tur_denetimi_hatalari_yakalar",
               "mac_cekirdek_denetimi", "mac_cekirdek_denetimi_hatalari_yakalar",
               "mac_uygulama_simgesi", "mac_paket_kurallari",
               "mac_bilgi_listesi", "dosya.yetkisiz_kullanici", "paket_insa", "paket_denetimi",
               "paket_kurulumu", "paket_calisir", "paket_yukseltme", "paket_kaldirma"]
    tekler += ["fuzz." + h for h in fuzz_hedefleri()]
    sorunlar += ["test yok: " + ad for ad in tekler if ad not in testler]
    return sorunlar, len(testler)


if __name__ == "__main__":
    sorunlar, sayi = eksikler()
    for s in sorunlar:
        print(s)
    print("%d test kayıtlı, %d eksik" % (sayi, len(sorunlar)))
    sys.exit(1 if sorunlar else 0)
