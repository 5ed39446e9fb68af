"""The installed package runs: /usr/bin/nevo from the package shows the demo under Xvfb,
answers the bridge's status request, and a nevo:// link opened through the desktop (GIO, as
a browser hands it over) reaches the running shell by the installed desktop entry."""
import subprocess

import paket  # first: it makes the integration tests' harness importable
import ortam
from ortam import DemoTesti


class KuruluPaket(DemoTesti):
    def masaustu_kur(self):
        m = super().masaustu_kur()
        # The installed entry lives in the system's data directories, which the other tests
        # do not see.
        m.ortam["XDG_DATA_DIRS"] = paket.SISTEM_VERI_DIZINLERI
        return m

    def test_kurulu_program_surumunu_soyler(self):
        r = subprocess.run([paket.KURULU_PROGRAM, "--version"], capture_output=True,
                           text=True, env=self.masaustu.ortam, timeout=60)
        self.assertEqual((r.returncode, r.stdout, r.stderr),
                         (0, "nevo %s\n" % paket.kurulu_surum(), ""))

    def test_kurulu_program_demoyu_gosterir_ve_kopru_cevaplar(self):
        k = self.kabuk("/", ikili=paket.KURULU_PROGRAM)
        durum = self.demo_gorunur_ve_cevaplar(k)
        # Installed, the shell has an application identity: launch at login can be offered.
        self.assertTrue(durum["baslangicDestekli"], durum)

    def test_nevo_baglantisi_masaustunden_calisan_kabuga_ulasir(self):
        k = self.kabuk("/", ikili=paket.KURULU_PROGRAM)
        self.demo_gorunur_ve_cevaplar(k)
        self.masaustu.komut(["gio", "open", "nevo://auth/baglanti?kod=PAKET42&baglanti=tamam"])
        self.olay(lambda o: o["tur"] == "demo"
                  and o["satir"] == '← nevoBaglantiDonusu("PAKET42", "tamam")',
                  neden="bağlantı dönüşü sayfada")
        # The link went to the running shell: no second one stays.
        self.masaustu.komutlar_bitsin("nevo://")


if __name__ == "__main__":
    ortam.calistir()
