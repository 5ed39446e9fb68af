"""The preference file under bad luck: the shell killed while it writes never leaves the
file truncated or lost, and the temporary files of killed writes go at the next start."""
import configparser
import glob
import os

import ortam
from ortam import KopruTesti

KAYITLI = "[Nevo]\nnevo.kisayol.kod=49\nnevo.kisayol.mod=256\nnevo.kisayol.ad=Ctrl+Space\n"


class TercihDosyasi(KopruTesti):
    def dosya(self):
        return os.path.join(self.masaustu.ortam["XDG_CONFIG_HOME"], "nevo", "tercihler.ini")

    def okunan(self):
        ayrac = configparser.ConfigParser(interpolation=None)
        with open(self.dosya(), encoding="utf-8") as f:
            ayrac.read_string(f.read())
        return ayrac["Nevo"]

    def test_yazarken_oldurulen_kabuk_dosyayi_bozmaz_yarim_kalanlar_silinir(self):
        os.makedirs(os.path.dirname(self.dosya()), exist_ok=True)
        with open(self.dosya(), "w") as f:
            f.write(KAYITLI)
        istek = 0
        for tur in range(5):
            k = self.kopru()
            ilk = istek + 1
            for _ in range(300):
                istek += 1
                self.gonder({"tur": "masaustu", "istek": istek, "eylem": "uyanik",
                             "deger": istek % 2 == 0})
            self.cevap(ilk + 20 + 7 * tur)  # well inside the stream of writes
            k.oldur()
            self.sunucu.komutlar.clear()
            self.sunucu.olaylar.clear()
            tercih = self.okunan()
            self.assertEqual(tercih["nevo.kisayol.kod"], "49")
            self.assertEqual(tercih["nevo.kisayol.ad"], "Ctrl+Space")
            self.assertIn(tercih["nevo.uyanikTut"], ("true", "false"))
        # A temporary file of a write whose process is gone, as a kill leaves it.
        olu = os.path.join(os.path.dirname(self.dosya()),
                           ".tercihler.ini.999999999.0F8FAD5B-D9CB-469F-A165-70867728950E")
        with open(olu, "w") as f:
            f.write("[Nevo]\nnevo.kisay")
        self.kopru()
        self.gonder({"tur": "masaustu", "istek": 1, "eylem": "durum"})
        self.assertEqual(self.cevap(1)["kisayol"], "Ctrl+Space")
        self.assertEqual(glob.glob(os.path.join(os.path.dirname(self.dosya()), ".tercihler*")),
                         [])


if __name__ == "__main__":
    ortam.calistir()
