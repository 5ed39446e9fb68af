"""The demo application in the shell: it shows, and its bridge panel, written with the
page-side kit, gets the shell's answers."""
import ortam
from ortam import DemoTesti

VARSAYILAN = {"baslangic": False, "baslangicDestekli": False, "baslangicHata": None,
              "kisayol": None, "menuCubugu": False, "uyanikTut": False}


class Demo(DemoTesti):
    def test_demo_gorunur_ve_durum_istegi_cevaplanir(self):
        k = self.kabuk("/")
        self.assertEqual(self.demo_gorunur_ve_cevaplar(k), VARSAYILAN)
        # The kit found the handler: the page knows it runs in the shell.
        self.assertFalse([o for o in self.sunucu.olaylar if o["tur"] == "demo"
                          and "köprü yok" in o["satir"]])


if __name__ == "__main__":
    ortam.calistir()
