"""The local agent on Linux with real child processes: started with exactly its own
environment, its log appended, stopped at quit and when the shell is killed, recorded so
that a launch stops an agent a dead shell left behind (and nothing else), paired for the
page."""
import os
import signal

import ortam
import yerel_ajan
from ortam import KopruTesti, bekle


class Ajan(KopruTesti):
    def setUp(self):
        super().setUp()
        self.kurulum = yerel_ajan.Kurulum(os.path.join(self.masaustu.ev, "onek"))
        self.veri = os.path.join(self.masaustu.ortam["XDG_DATA_HOME"], "Nevo")
        self.gunluk = os.path.join(self.veri, "ajan.log")

    def kabuk_ac(self, **kw):
        return self.kopru(ikili=self.kurulum.ikili, **kw)

    def ajan_bekle(self, sayi=1):
        return bekle(lambda: len(self.kurulum.ajanlar()) >= sayi and self.kurulum.ajanlar(),
                     neden="ajan başladı")

    def eslestirmeler_bitsin(self):
        """Waits until no pairing run is left: each run the shell started has written its
        record by then."""
        self.masaustu.komutlar_bitsin(self.kurulum.betik + " eslestir")

    def eslestir(self, kod):
        self.gonder({"tur": "ajan-eslestir", "kod": kod})

    def eslestirme(self, kosul=lambda o: True, neden="eşleştirme sonucu"):
        return self.olay(lambda o: o["tur"] == "eslestirme" and kosul(o), neden=neden)

    def test_ajan_kurulan_ortamla_betik_dizininde_baslar(self):
        self.kabuk_ac(ek_ortam={"LD_PRELOAD": "", "NODE_OPTIONS": "--inspect=0",
                                "NEVO_SIZINTI": "1"})
        pid = self.ajan_bekle()[0]
        ev = self.masaustu.ev
        self.assertEqual(self.kurulum.oku(pid, "argv").splitlines(),
                         [self.kurulum.node, self.kurulum.betik])
        self.assertEqual(self.kurulum.oku(pid, "cwd").strip(),
                         os.path.join(self.kurulum.kaynaklar, "ajan"))
        self.assertEqual(self.kurulum.ortam(pid), sorted([
            "HOME=" + ev,
            "KOPRU_ADRES=wss://kopru.nevo.ai/ajan",
            "KOPRU_KOK=" + ev + "/Nevo",
            "NEVO_VERI=" + self.veri,
            "PATH=/usr/bin:/bin:/usr/sbin:/sbin",
        ]))
        self.assertTrue(os.path.isdir(os.path.join(ev, "Nevo")))

    def test_gunluk_eklenir_kesilmez(self):
        os.makedirs(self.veri)
        with open(self.gunluk, "w") as f:
            f.write("önceki çalışma\n")
        self.kabuk_ac()
        pid = self.ajan_bekle()[0]
        bekle(lambda: "ajan basladi" in self.gunluk_metni(), neden="günlük satırı")
        self.assertEqual(self.gunluk_metni(), "önceki çalışma\najan basladi %d\n" % pid)

    def gunluk_metni(self):
        with open(self.gunluk, encoding="utf-8") as f:
            return f.read()

    def test_cikista_ajan_sigterm_alir_zombi_kalmaz(self):
        k = self.kabuk_ac()
        pid = self.ajan_bekle()[0]
        self.assertEqual(k.bitir(20), 0)
        bekle(lambda: self.kurulum.var(pid, "sigterm"), neden="SIGTERM")
        bekle(lambda: yerel_ajan.surec_durumu(pid) is None, neden="ajan gitti")

    def kayit_yolu(self):
        return os.path.join(self.veri, "ajan.pid")

    def kimlik(self, pid):
        """What the shell records of a process: its start in clock ticks and its program."""
        with open("/proc/%d/stat" % pid) as f:
            baslangic = f.read().rsplit(")", 1)[1].split()[19]
        return baslangic, os.readlink("/proc/%d/exe" % pid)

    def kaydet(self, pid, baslangic, program):
        os.makedirs(self.veri, exist_ok=True)
        with open(self.kayit_yolu(), "w") as f:
            f.write("%d\n%s\n%s\n" % (pid, baslangic, program))

    def test_oldurulen_kabugun_ajani_sigterm_alir(self):
        k = self.kabuk_ac()
        pid = self.ajan_bekle()[0]
        k.oldur()
        bekle(lambda: self.kurulum.var(pid, "sigterm"), neden="SIGTERM")
        bekle(lambda: yerel_ajan.surec_durumu(pid) is None, neden="ajan gitti")

    def test_calisan_ajan_numarasi_baslangici_ve_programiyla_kaydedilir(self):
        self.kabuk_ac()
        pid = self.ajan_bekle()[0]
        with open(self.kayit_yolu()) as f:
            self.assertEqual(f.read(), "%d\n%s\n%s\n" % ((pid,) + self.kimlik(pid)))

    def test_olen_kabugun_biraktigi_ajan_yeni_kabukta_durur_tek_ajan_kalir(self):
        kalan = self.masaustu._baslat([self.kurulum.node, self.kurulum.betik],
                                      cwd=os.path.dirname(self.kurulum.betik))
        bekle(lambda: self.kurulum.ajanlar() == [kalan.pid], neden="kalan ajan")
        self.kaydet(kalan.pid, *self.kimlik(kalan.pid))
        k = self.kabuk_ac()
        bekle(lambda: self.kurulum.var(kalan.pid, "sigterm"), neden="kalan ajana SIGTERM")
        kalan.wait(20)
        yeni = [p for p in self.ajan_bekle(2) if p != kalan.pid]
        self.assertEqual(len(yeni), 1)
        self.assertEqual(yerel_ajan.surec_durumu(kalan.pid), None)
        self.assertIsNotNone(yerel_ajan.surec_durumu(yeni[0]))
        k.yasiyor_mu()

    def test_kayittaki_numarayi_alan_baska_surece_dokunulmaz(self):
        uyuyan = self.masaustu._baslat(["sleep", "1000"])
        baslangic, program = self.kimlik(uyuyan.pid)
        self.kaydet(uyuyan.pid, str(int(baslangic) + 1), program)  # the same number, later
        self.kabuk_ac()
        # The record is read before the new agent starts: once it runs, a signal would
        # have reached the sleeping process.
        ajan = self.ajan_bekle()[0]
        bekle(lambda: self.kurulum.oku(ajan, "env"), neden="ajan çalışıyor")
        self.assertIsNone(uyuyan.poll())
        self.assertNotEqual(yerel_ajan.surec_durumu(uyuyan.pid), "Z")

    def test_coken_ajan_fark_edilmez_yeniden_baslatilmaz_zombi_kalmaz(self):
        k = self.kabuk_ac()
        pid = self.ajan_bekle()[0]
        for torun in ortam.torunlar(pid):  # what the killed agent started lives on
            self.masaustu.birak(torun)
        os.kill(pid, signal.SIGKILL)
        # The shell reaps it: the process disappears instead of staying a zombie.
        bekle(lambda: yerel_ajan.surec_durumu(pid) is None, neden="çöken ajan toplandı")
        self.eslestir("hata-99")  # a failed pairing does not start the agent either
        o = self.eslestirme()
        self.assertEqual((o["ok"], o["mesaj"]), (False, "reddedildi HATA99"))
        # A restarted agent would have started before the shell ends, which stops it; once
        # the shell has ended and none of the prefix's programs runs, every start is recorded.
        k.bitir()
        self.masaustu.komutlar_bitsin(self.kurulum.kok)
        self.assertEqual(self.kurulum.ajanlar(), [pid])

    def test_sayisal_cevap_geri_cagriya_sayi_olarak_ulasir(self):
        self.kabuk_ac()
        self.eslestir("sayi-12")
        o = self.eslestirme()
        self.assertEqual((o["ok"], o["mesaj"], o["turu"]), (True, 1234, "number"))
        eslestirme = [a for a in self.kurulum.calismalar().values() if "eslestir" in a]
        self.assertEqual(eslestirme, [[self.kurulum.node, self.kurulum.betik, "eslestir",
                                       "SAYI12"]])

    def test_ifade_olmayan_cevap_sayfada_sozdizimi_hatasidir(self):
        self.kabuk_ac()
        self.eslestir("ab")  # "Kod geçersiz." stands unquoted: the page's engine rejects it
        self.eslestir("eslesir-1")  # "Eşleşti ESLESIR1" likewise
        self.eslestir("ifade-12")  # "[1, 2].length" is an expression: 2
        o = self.eslestirme()
        self.assertEqual((o["ok"], o["mesaj"]), (True, 2))
        # The runs go on side by side: once all have ended, the answer to a later pairing
        # comes after whatever their answers did in the page.
        self.eslestirmeler_bitsin()
        self.eslestir("sayi-77")
        self.eslestirme(lambda o: o["mesaj"] == 1234)
        self.assertEqual([o["mesaj"] for o in self.olaylar("eslestirme")], [2, 1234])

    def test_ikinci_eslestirme_birincisi_surerken_kendi_basina_bildirir(self):
        self.kabuk_ac()
        self.eslestir("bekle-1")
        bekle(lambda: any("BEKLE1" in a for a in self.kurulum.calismalar().values()),
              neden="ilk eşleştirme çalışıyor")
        self.eslestir("sayi-34")
        self.assertEqual(self.eslestirme()["mesaj"], 1234)
        open(os.path.join(self.kurulum.kaynaklar, "birak"), "w").close()
        self.assertEqual(self.eslestirme(lambda o: o["mesaj"] == "bekledi")["ok"], True)

    def test_secenek_gibi_ve_kotu_kodlar_runtimea_secenek_olarak_gitmez(self):
        k = self.kabuk_ac()
        for kod in ("--inspect", "-e", "a" * 10000, "e\u0301" * 20, "👍🏽" * 8, "--require=/x"):
            self.eslestir(kod)
        self.eslestir("sayi-99")
        self.eslestirme()
        k.yasiyor_mu()

        def kodlar():
            return sorted(a[3] for a in self.kurulum.calismalar().values() if "eslestir" in a)
        # The runs go on side by side: the last code's answer may come before another run
        # has written its record, which each has done once none runs.
        self.eslestirmeler_bitsin()
        for argv in self.kurulum.calismalar().values():
            self.assertEqual(argv[:2], [self.kurulum.node, self.kurulum.betik])
            for arg in argv[2:]:
                self.assertFalse(arg.startswith("-"), argv)
        self.assertEqual(kodlar(), ["INSPECT", "REQUIREX", "SAYI99"])


if __name__ == "__main__":
    ortam.calistir()
