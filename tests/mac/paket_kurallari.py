#!/usr/bin/env python3
"""The bundle check's decisions (scripts/mac_paket_denetimi.py) on outputs of `otool -L`,
`vtool -show-build` and `plutil` in the form a Mac prints them: the recorded good bundle
passes, and each rule refuses its own bad case."""
import json
import os
import subprocess
import sys
import tempfile
import unittest

BURASI = os.path.dirname(os.path.abspath(__file__))
BETIK = os.path.join(BURASI, "..", "..", "scripts", "mac_paket_denetimi.py")
sys.path.insert(0, os.path.dirname(BETIK))
import mac_paket_denetimi as denetim  # noqa: E402

ANA = "Contents/MacOS/Nevo"
NODE = "Contents/Helpers/node"
HOMEBREW_ICU = ("\t/opt/homebrew/opt/icu4c@76/lib/libicuuc.76.dylib "
                "(compatibility version 76.0.0, current version 76.1.0)\n")


def iyi_kayit():
    with open(os.path.join(BURASI, "paket_kaydi", "iyi.json"), encoding="utf-8") as f:
        return json.load(f)


def bilgi_degistir(kayit, **degerler):
    bilgi = json.loads(kayit["bilgi_listesi"])
    bilgi.update(degerler)
    kayit["bilgi_listesi"] = json.dumps(bilgi)


def kutuphane_ekle(kayit, yol, kurulum_adi):
    kayit["dosyalar"][yol] = {"boyut": 4096}
    kayit["mach_o"][yol] = {
        "otool_L": f"{yol}:\n\t{kurulum_adi} (compatibility version 1.0.0, current version "
                   "1.0.0)\n\t/usr/lib/libSystem.B.dylib (compatibility version 1.0.0, current "
                   "version 1351.0.0)\n",
        "vtool": kayit["mach_o"][NODE]["vtool"]}


class PaketKurallari(unittest.TestCase):
    def sorunlar(self, kayit):
        return denetim.denetle(kayit, "12.0", "app.nevo.Nevo")

    def tek_sorun(self, kayit, parca):
        sorunlar = self.sorunlar(kayit)
        self.assertEqual(len(sorunlar), 1, sorunlar)
        self.assertIn(parca, sorunlar[0])

    def test_kayitli_iyi_paket_gecer(self):
        self.assertEqual(self.sorunlar(iyi_kayit()), [])

    def test_homebrew_kutuphanesine_bag_reddedilir(self):
        kayit = iyi_kayit()
        kayit["mach_o"][ANA]["otool_L"] += HOMEBREW_ICU
        self.tek_sorun(kayit, "links /opt/homebrew/opt/icu4c@76/lib/libicuuc.76.dylib")

    def test_paketteki_kutuphaneye_goreli_bag_gecer_olmayana_reddedilir(self):
        kayit = iyi_kayit()
        kutuphane_ekle(kayit, "Contents/Frameworks/liburiparser.1.dylib",
                       "@rpath/liburiparser.1.dylib")
        kayit["mach_o"][ANA]["otool_L"] += (
            "\t@rpath/liburiparser.1.dylib (compatibility version 1.0.0, current version "
            "1.0.0)\n")
        self.assertEqual(self.sorunlar(kayit), [])
        kayit["mach_o"][ANA]["otool_L"] += (
            "\t@executable_path/../Frameworks/libicuuc.76.dylib (compatibility version "
            "76.0.0, current version 76.1.0)\n")
        self.tek_sorun(kayit, "links @executable_path/../Frameworks/libicuuc.76.dylib")

    def test_yeni_macos_isteyen_her_mach_o_reddedilir(self):
        kayit = iyi_kayit()
        kayit["mach_o"][NODE]["vtool"] = kayit["mach_o"][NODE]["vtool"].replace(
            "minos 11.0", "minos 13.5")
        self.tek_sorun(kayit, f"{NODE} needs macOS 13.5, newer than 12.0")

    def test_cok_mimarili_dosyada_her_mimari_sayilir(self):
        kayit = iyi_kayit()
        tek = kayit["mach_o"][NODE]["vtool"].split("\n", 1)[1]
        kayit["mach_o"][NODE]["vtool"] = (
            f"{NODE} (architecture x86_64):\n" + tek.replace("minos 11.0", "minos 10.15")
            + f"{NODE} (architecture arm64):\n" + tek.replace("minos 11.0", "minos 14.0"))
        self.tek_sorun(kayit, "needs macOS 14.0")

    def test_eski_surum_komutu_okunur(self):
        kayit = iyi_kayit()
        kayit["mach_o"][NODE]["vtool"] = (
            f"{NODE}:\nLoad command 9\n      cmd LC_VERSION_MIN_MACOSX\n  cmdsize 16\n"
            "  version 12.3\n      sdk 13.1\n")
        self.tek_sorun(kayit, "needs macOS 12.3")

    def test_en_dusuk_surumu_yazmayan_mach_o_reddedilir(self):
        kayit = iyi_kayit()
        kayit["mach_o"][NODE]["vtool"] = f"{NODE}:\n"
        self.tek_sorun(kayit, f"{NODE} states no minimum macOS")

    def test_ana_ikili_paketin_en_dusuk_surumuyle_derlenir(self):
        kayit = iyi_kayit()
        kayit["mach_o"][ANA]["vtool"] = kayit["mach_o"][ANA]["vtool"].replace(
            "minos 12.0", "minos 11.0")
        self.tek_sorun(kayit, f"{ANA} is built for macOS 11.0, not 12.0")

    def test_kaynaklardaki_kod_reddedilir(self):
        kayit = iyi_kayit()
        kayit["mach_o"]["Contents/Resources/node"] = kayit["mach_o"].pop(NODE)
        kayit["dosyalar"]["Contents/Resources/node"] = kayit["dosyalar"].pop(NODE)
        sorunlar = self.sorunlar(kayit)
        self.assertIn("Contents/Resources/node is code outside", sorunlar[0])
        self.assertIn(f"{NODE} is not a Mach-O file", sorunlar[1])
        self.assertIn("not a link to ../Helpers/node", sorunlar[2])

    def test_calisma_ortami_bagi_goreli_olur(self):
        kayit = iyi_kayit()
        kayit["dosyalar"]["Contents/Resources/node"] = {
            "bag": "/Applications/Nevo.app/Contents/Helpers/node"}
        self.tek_sorun(kayit, "not a link to ../Helpers/node")

    def test_bilgi_listesinin_degerleri_denetlenir(self):
        for anahtar, deger in (("LSMinimumSystemVersion", "14.0"),
                               ("CFBundleIdentifier", "org.example.Nevo"),
                               ("CFBundleIconFile", "Icon")):
            with self.subTest(anahtar=anahtar):
                kayit = iyi_kayit()
                bilgi_degistir(kayit, **{anahtar: deger})
                self.tek_sorun(kayit, f"Info.plist: {anahtar} is {deger!r}")
        kayit = iyi_kayit()
        bilgi_degistir(kayit, CFBundleURLTypes=[])
        self.tek_sorun(kayit, "URL schemes are []")

    def test_simgesiz_paket_reddedilir(self):
        kayit = iyi_kayit()
        kayit["dosyalar"]["Contents/Resources/AppIcon.icns"]["boyut"] = 0
        self.tek_sorun(kayit, "AppIcon.icns is missing or empty")

    def test_betik_sorunlu_pakette_basarisiz_olur(self):
        kayit = iyi_kayit()
        kayit["mach_o"][ANA]["otool_L"] += HOMEBREW_ICU
        with tempfile.TemporaryDirectory() as dizin:
            for ad, k, beklenen in (("iyi.json", iyi_kayit(), 0), ("kotu.json", kayit, 1)):
                yol = os.path.join(dizin, ad)
                with open(yol, "w", encoding="utf-8") as f:
                    json.dump(k, f)
                r = subprocess.run([sys.executable, BETIK, "denetle", yol, "--en-dusuk", "12.0",
                                    "--kimlik", "app.nevo.Nevo"], capture_output=True, text=True)
                self.assertEqual(r.returncode, beklenen, r.stdout + r.stderr)


if __name__ == "__main__":
    unittest.main()
