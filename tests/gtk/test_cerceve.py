"""Hostile frames and addresses: frames inside the application's page never reach the
shell, and only web and mail addresses ever reach the desktop's programs."""
import os

import ortam
from ortam import KabukTesti, Sunucu, bekle


class Cerceve(KabukTesti):
    def sahte_isleyici(self, sema):
        """Registers a program for the scheme that records each address it is given;
        returns the record's path."""
        kayit = os.path.join(self.masaustu.ev, sema + ".log")
        betik = os.path.join(self.masaustu.ev, sema + ".sh")
        with open(betik, "w") as f:
            f.write('#!/bin/sh\nprintf "%%s\\n" "$1" >> "%s"\n' % kayit)
        os.chmod(betik, 0o755)
        uygulamalar = os.path.join(self.masaustu.ortam["XDG_DATA_HOME"], "applications")
        os.makedirs(uygulamalar, exist_ok=True)
        with open(os.path.join(uygulamalar, "sahte-%s.desktop" % sema), "w") as f:
            f.write("[Desktop Entry]\nType=Application\nName=%s\nExec=%s %%u\n"
                    "MimeType=x-scheme-handler/%s;\n" % (sema, betik, sema))
        with open(os.path.join(self.masaustu.ortam["XDG_CONFIG_HOME"], "mimeapps.list"),
                  "a") as f:
            f.write("x-scheme-handler/%s=sahte-%s.desktop\n" % (sema, sema))
        return kayit

    def test_cerceveler_kabugu_yonetemez_disari_yalniz_web_adresleri_cikar(self):
        tarayici = self.masaustu.sahte_tarayici()
        kayitlar = [self.sahte_isleyici(s) for s in ("x-test", "smb")]
        baska = Sunucu(ortam.FIKSTURLER).arka_planda()
        self.addCleanup(baska.server_close)
        self.addCleanup(baska.shutdown)
        k = self.kabuk("/cerceveler.html?sema=x-test&baska=" + baska.adres)
        self.olay(lambda o: o["tur"] == "hazir", neden="çerçeve sayfası hazır")
        k.sayfa_gorunur()
        denemeler = [self.olay(lambda o, ad=ad: o["tur"] == "cerceve-denedi"
                               and o["kaynak"] == ad, neden="çerçeve denemesi " + ad)
                     for ad in ("kum-havuzu", "baska-port")]
        # Neither frame even sees the handler, nor can it reach the top page's.
        self.assertEqual([d["atilan"] for d in denemeler], [9, 9])
        for sira in range(4):
            k.tikla(400, 500)
            self.olay(lambda o, s=sira: o["tur"] == "tiklandi" and o["sira"] == s,
                      neden="tıklama %d" % sira)
        # Each click asks for the status after its address: with the page's beacons in order,
        # the fourth reply comes after everything the shell did for the addresses, and the
        # programs it would have started have ended once none runs.
        bekle(lambda: len([o for o in list(self.sunucu.olaylar)
                           if o["tur"] == "cevap" and o["istek"] == 1]) >= 4,
              neden="üst sayfanın dört cevabı")
        for kayit in kayitlar + [tarayici]:
            self.masaustu.komutlar_bitsin(kayit.replace(".log", ".sh"))
        cevaplar = sorted({o["istek"] for o in self.sunucu.olaylar if o["tur"] == "cevap"})
        self.assertEqual(cevaplar, [1])
        self.assertFalse([o for o in self.sunucu.olaylar if o["tur"] == "bildirim-durumu"])
        for kayit in kayitlar + [tarayici]:
            self.assertFalse(os.path.exists(kayit), open(kayit).read()
                             if os.path.exists(kayit) else kayit)
        tercihler = os.path.join(self.masaustu.ortam["XDG_CONFIG_HOME"], "nevo", "tercihler.ini")
        self.assertFalse(os.path.exists(tercihler) and "uyanik" in open(tercihler).read())
        k.yasiyor_mu()


if __name__ == "__main__":
    ortam.calistir()
