"""The page bridge on Linux: the page posts to "nevo", the shell answers
through the guarded page callbacks; preferences and the autostart entry are real files."""
import configparser
import glob
import os
import shlex

import ortam
from ortam import KopruTesti, bekle

VARSAYILAN = {"baslangic": False, "baslangicDestekli": False, "baslangicHata": None,
              "kisayol": None, "menuCubugu": False, "uyanikTut": False}


class Kopru(KopruTesti):
    def test_durum_istegi_alti_uyeli_durumla_cevaplanir(self):
        self.kopru()
        self.gonder({"tur": "masaustu", "istek": 7, "eylem": "durum"})
        self.assertEqual(self.cevap(7), VARSAYILAN)
        self.gonder({"tur": "masaustu", "eylem": "durum"})
        self.assertEqual(self.cevap(0), VARSAYILAN)

    def test_ayar_eylemlerinden_sonra_durum(self):
        self.kopru()
        self.gonder({"tur": "masaustu", "istek": 1, "eylem": "menu-cubugu", "deger": True})
        self.assertEqual(self.cevap(1), dict(VARSAYILAN, menuCubugu=True))
        self.gonder({"tur": "masaustu", "istek": 2, "eylem": "uyanik", "deger": True})
        self.assertEqual(self.cevap(2), dict(VARSAYILAN, menuCubugu=True, uyanikTut=True))
        self.gonder({"tur": "masaustu", "istek": 3, "eylem": "uyanik", "deger": "true"})
        self.assertEqual(self.cevap(3), dict(VARSAYILAN, menuCubugu=True))
        self.gonder({"tur": "masaustu", "istek": 4, "eylem": "kisayol-sil"})
        self.assertEqual(self.cevap(4), dict(VARSAYILAN, menuCubugu=True))
        self.gonder({"tur": "masaustu", "istek": 5, "eylem": "kisayol-kaydet"})
        # The recorder answers when it closes: given up with Escape, nothing recorded.
        levha = bekle(lambda: self.masaustu.komut(
            ["xdotool", "search", "--onlyvisible", "--name", "^Kısayol$"], hata_yok=True).strip(),
            neden="kaydedici")
        self.masaustu.xdotool("windowactivate", "--sync", levha.split()[0])
        self.masaustu.xdotool("key", "Escape")
        self.assertEqual(self.cevap(5), dict(VARSAYILAN, menuCubugu=True))
        self.gonder({"tur": "masaustu", "istek": 6, "eylem": "baslangic", "deger": True})
        self.assertEqual(self.cevap(6), dict(VARSAYILAN, menuCubugu=True))

    def test_bilinmeyen_eylem_ve_bozuk_mesajlar_cevapsiz(self):
        self.kopru()
        for govde in ({"tur": "masaustu", "istek": 11, "eylem": "Durum"},
                      {"tur": "masaustu", "istek": 12},
                      {"tur": "Masaustu", "istek": 13, "eylem": "durum"},
                      "masaustu", ["masaustu"], 42, None, {}):
            self.gonder(govde)
        self.kopru_turu(14)  # anything sent back before its reply is recorded by then
        self.assertEqual([o["istek"] for o in self.olaylar("cevap")], [14])
        self.assertEqual([o for o in list(self.sunucu.olaylar)
                          if o["tur"] not in ("cevap", "hazir")], [])

    def test_tarayicida_ac_yalniz_https(self):
        kayit = self.masaustu.sahte_tarayici()
        self.kopru()
        self.gonder({"tur": "tarayicida-ac", "url": "http://example.com/duz"})
        self.gonder({"tur": "tarayicida-ac", "url": "HTTPS://example.com/buyuk"})
        self.gonder({"tur": "tarayicida-ac", "url": "https://example.com/guvenli?a=1"})
        # A last address, opened after the others would have been: once both secure addresses
        # have reached the browser and no browser runs any more, every address opened is in
        # the record (each launch is a process of its own, so they may write in any order).
        self.gonder({"tur": "tarayicida-ac", "url": "https://example.com/son"})

        def kayitta(*parcalar):
            if not os.path.exists(kayit):
                return False
            with open(kayit) as f:
                metin = f.read()
            return all(p in metin for p in parcalar)
        bekle(lambda: kayitta("/guvenli?a=1", "/son"), neden="güvenli adresler tarayıcıda")
        self.masaustu.komutlar_bitsin(kayit.replace(".log", ".sh"))
        with open(kayit) as f:
            self.assertEqual(sorted(f.read().split()), ["https://example.com/guvenli?a=1",
                                                        "https://example.com/son"])

    def test_bildirim_ayarlari_masaustunun_ayarlarini_acar(self):
        kutu = os.path.join(self.masaustu.ev, "bin")
        os.makedirs(kutu)
        kayit = os.path.join(self.masaustu.ev, "ayarlar.log")
        with open(os.path.join(kutu, "gnome-control-center"), "w") as f:
            f.write('#!/bin/sh\necho "$@" >> %s\n' % kayit)
        os.chmod(os.path.join(kutu, "gnome-control-center"), 0o755)
        self.kopru(ek_ortam={"PATH": kutu + os.pathsep + os.environ["PATH"],
                             "XDG_CURRENT_DESKTOP": "GNOME"})
        self.gonder({"tur": "bildirim-ayarlari"})
        def satir():
            if os.path.exists(kayit):
                with open(kayit) as f:
                    return f.read().strip()
            return None
        self.assertEqual(bekle(satir, neden="ayarlar açıldı"), "notifications")

    def test_paketsiz_bildirim_durumu_desteklenmiyor(self):
        self.kopru()
        self.gonder({"tur": "bildirim-durum"})
        self.gonder({"tur": "bildirim-izin-iste"})
        bekle(lambda: len(self.olaylar("bildirim-durumu")) == 2, neden="iki cevap")
        self.assertEqual([o["kelime"] for o in self.olaylar("bildirim-durumu")],
                         ["desteklenmiyor", "desteklenmiyor"])

    def test_on_bin_istek_eksiksiz_ve_sirayla_cevaplanir(self):
        self.kopru()
        self.sunucu.komut_ekle({"patlama": 10000})
        o = self.olay(lambda o: o["tur"] == "patlama", 120, neden="10000 cevap")
        self.assertEqual(o["sayi"], 10000)
        self.assertTrue(o["sirali"])


class Tercihler(KopruTesti):
    def dosya(self):
        return os.path.join(self.masaustu.ortam["XDG_CONFIG_HOME"], "nevo", "tercihler.ini")

    def test_tercihler_yeniden_baslatmada_kalir(self):
        k = self.kopru()
        self.gonder({"tur": "masaustu", "istek": 1, "eylem": "menu-cubugu", "deger": True})
        self.cevap(1)
        self.assertEqual(k.bitir(), 0)
        ini = configparser.ConfigParser()
        ini.read(self.dosya())
        self.assertEqual(ini["Nevo"]["nevo.menuCubugu"], "true")
        self.sunucu.olaylar.clear()
        self.kopru()
        self.gonder({"tur": "masaustu", "istek": 2, "eylem": "durum"})
        self.assertEqual(self.cevap(2), dict(VARSAYILAN, menuCubugu=True))

    def test_bozuk_dosya_yok_sayilir_ve_kenara_alinir(self):
        os.makedirs(os.path.dirname(self.dosya()))
        bozuk = b"[Nevo\nnevo.kisayol.kod=49\n\xff\xfe garbage"
        with open(self.dosya(), "wb") as f:
            f.write(bozuk)
        self.kopru()
        self.gonder({"tur": "masaustu", "istek": 1, "eylem": "durum"})
        self.assertEqual(self.cevap(1), VARSAYILAN)
        self.gonder({"tur": "masaustu", "istek": 2, "eylem": "uyanik", "deger": True})
        self.assertEqual(self.cevap(2), dict(VARSAYILAN, uyanikTut=True))
        kenar = glob.glob(self.dosya() + ".bozuk-*")
        self.assertEqual(len(kenar), 1)
        with open(kenar[0], "rb") as f:
            self.assertEqual(f.read(), bozuk)

    def test_tamsayi_olmayan_kisayol_kodu_kisayolsuz_okunur(self):
        os.makedirs(os.path.dirname(self.dosya()))
        with open(self.dosya(), "w") as f:
            f.write("[Nevo]\nnevo.kisayol.kod=boşluk\nnevo.kisayol.ad=Ctrl+Space\n")
        self.kopru()
        self.gonder({"tur": "masaustu", "istek": 1, "eylem": "durum"})
        self.assertIsNone(self.cevap(1)["kisayol"])
        with open(self.dosya(), "w") as f:
            f.write("[Nevo]\nnevo.kisayol.kod=49\n")
        self.gonder({"tur": "masaustu", "istek": 2, "eylem": "durum"})
        self.assertEqual(self.cevap(2)["kisayol"], "")


    def test_metin_sayfaya_aynen_ulasir(self):
        ad = "a'b\\c\"d\u2028e\u2029f\r\ng\t🙂 şİı </script> ${x}`"
        os.makedirs(os.path.dirname(self.dosya()))
        kacik = ad.replace("\\", "\\\\").replace("\r", "\\r").replace("\n", "\\n")
        with open(self.dosya(), "w", encoding="utf-8") as f:
            f.write("[Nevo]\nnevo.kisayol.kod=49\nnevo.kisayol.ad=%s\n" % kacik)
        self.kopru()
        self.gonder({"tur": "masaustu", "istek": 1, "eylem": "durum"})
        self.assertEqual(self.cevap(1)["kisayol"], ad)


class Baslangic(KopruTesti):
    def girdi(self):
        return os.path.join(self.masaustu.ortam["XDG_CONFIG_HOME"], "autostart",
                            "app.nevo.Nevo.desktop")

    def test_kurulu_uygulamada_otomatik_baslatma_girdisi_gelir_ve_gider(self):
        self.kurulu_uygulama()
        self.kopru()
        self.gonder({"tur": "masaustu", "istek": 1, "eylem": "durum"})
        self.assertEqual(self.cevap(1), dict(VARSAYILAN, baslangicDestekli=True))
        self.gonder({"tur": "masaustu", "istek": 2, "eylem": "baslangic", "deger": True})
        self.assertEqual(self.cevap(2), dict(VARSAYILAN, baslangicDestekli=True,
                                             baslangic=True))
        ini = configparser.ConfigParser(interpolation=None)
        ini.read(self.girdi())
        exec_ = shlex.split(ini["Desktop Entry"]["Exec"])
        self.assertEqual(exec_, [os.path.realpath(ortam.NEVO)])
        self.gonder({"tur": "masaustu", "istek": 3, "eylem": "baslangic", "deger": False})
        self.assertEqual(self.cevap(3), dict(VARSAYILAN, baslangicDestekli=True))
        self.assertFalse(os.path.exists(self.girdi()))

    def test_kurulu_olmayan_uygulama_girdi_yazmaz(self):
        self.kopru()
        self.gonder({"tur": "masaustu", "istek": 1, "eylem": "baslangic", "deger": True})
        self.assertEqual(self.cevap(1), VARSAYILAN)
        self.assertFalse(os.path.exists(self.girdi()))


if __name__ == "__main__":
    ortam.calistir()
