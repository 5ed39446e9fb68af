// The local agent: locating, starting, stopping and pairing it, with real child processes.
#include "agent/ajan.hpp"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/stat.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "agent/ajan_kaydi.hpp"
#include "fakes/sahte_ajan.hpp"
#include "fakes/sahte_kuyruk.hpp"

namespace nevo {
namespace {

namespace fs = std::filesystem;
using sahte::AjanKurulumu;
using sahte::bekle;
using sahte::dosyaOku;
using sahte::dosyaYaz;

struct Cevap {
  bool ok;
  std::string mesaj;
};

class AjanTesti : public ::testing::Test {
 protected:
  AjanTesti() : ajan(k.yerler(), kuyruk) {}
  ~AjanTesti() override { ajan.ajaniDurdur(); }

  // A pairing whose outcome is recorded in `cevaplar`.
  void eslestir(const std::string& kod) {
    ajan.ajanEslestir(kod, [this](bool ok, const std::string& m) { cevaplar.push_back({ok, m}); });
  }

  // Waits for the pairing runs' reports and delivers them on the "main queue".
  void cevapBekle(std::size_t sayi = 1) {
    ASSERT_TRUE(bekle([&] {
      kuyruk.calistir();
      return cevaplar.size() >= sayi;
    }));
  }
  // The recorded arguments of the one pairing run.
  std::string eslestirmeArgumanlari() {
    EXPECT_TRUE(k.calismaBekle(1));
    for (const auto& pid : k.calismalar()) {
      auto argv = k.kayit(pid, "argv");
      if (argv.find("\neslestir\n") != std::string::npos) return argv;
    }
    return {};
  }
  std::string tekCalisma() {
    EXPECT_TRUE(k.calismaBekle(1));
    const auto c = k.calismalar();
    return c.empty() ? "" : c.front();
  }

  AjanKurulumu k;
  sahte::Kuyruk kuyruk;
  std::vector<Cevap> cevaplar;
  Ajan ajan;
};

TEST_F(AjanTesti, AjanBetiktenVeCalismaZamanindanBaslar) {
  ajan.ajaniBaslat();
  ASSERT_NE(ajan.ajanSureci(), nullptr);
  const auto pid = tekCalisma();
  const auto betik = (k.kaynaklar / "ajan" / "ajan.mjs").string();
  EXPECT_EQ(k.kayit(pid, "argv"), (k.kaynaklar / "node").string() + "\n" + betik + "\n");
  EXPECT_EQ(k.kayit(pid, "cwd"), (k.kaynaklar / "ajan").string() + "\n");
  EXPECT_TRUE(fs::is_directory(k.ev() / "Nevo"));
  EXPECT_TRUE(fs::is_regular_file(k.gunluk()));
}

TEST_F(AjanTesti, AjaninOrtamiTamOlarakKurulanOrtamdir) {
  setenv("LD_PRELOAD", "", 1);
  setenv("NODE_OPTIONS", "--inspect", 1);
  ajan.ajaniBaslat();
  unsetenv("LD_PRELOAD");
  unsetenv("NODE_OPTIONS");
  const auto pid = tekCalisma();
  const auto ev = k.ev().string();
  // The shell that runs the recording runtime adds PWD (and, by itself, nothing else).
  auto kayit = k.kayit(pid, "env");
  std::vector<std::string> satirlar;
  for (std::size_t bas = 0, son; (son = kayit.find('\n', bas)) != std::string::npos;
       bas = son + 1) {
    const auto satir = kayit.substr(bas, son - bas);
    if (!satir.starts_with("PWD=") && !satir.starts_with("SHLVL=") && !satir.starts_with("_=")) {
      satirlar.push_back(satir);
    }
  }
  std::sort(satirlar.begin(), satirlar.end());
  EXPECT_EQ(satirlar, (std::vector<std::string>{
                          "HOME=" + ev,
                          "KOPRU_ADRES=wss://kopru.example/ajan",
                          "KOPRU_KOK=" + ev + "/Nevo",
                          "NEVO_VERI=" + ev + "/veri/Nevo",
                          "PATH=/usr/bin:/bin:/usr/sbin:/sbin",
                      }));
}

TEST_F(AjanTesti, OrtamDosyasiAjanaVeEslestirmeyeAyniKopruAdresiniVerir) {
  dosyaYaz(k.kaynaklar / AJAN_ORTAM_DOSYASI, "KOPRU_ADRES=wss://yerel:9000\n");
  ajan.ajaniBaslat();
  ASSERT_TRUE(k.calismaBekle(1));
  eslestir("ABCDEF");
  cevapBekle();
  ASSERT_TRUE(k.calismaBekle(2));
  for (const auto& pid : k.calismalar()) {
    EXPECT_NE(k.kayit(pid, "env").find("KOPRU_ADRES=wss://yerel:9000\n"), std::string::npos);
  }
}

TEST_F(AjanTesti, AjanCiktisiGunlugeEklenirGunlukKesilmez) {
  dosyaYaz(k.gunluk(), "önceki satır\n");
  ajan.ajaniBaslat();
  const auto pid = tekCalisma();
  ASSERT_TRUE(
      bekle([&] { return dosyaOku(k.gunluk()).find("ajan basladi") != std::string::npos; }));
  EXPECT_EQ(dosyaOku(k.gunluk()), "önceki satır\najan basladi " + pid + "\n");
}

TEST_F(AjanTesti, CalisirkenIkinciBaslatmaHicbirSeyYapmaz) {
  ajan.ajaniBaslat();
  const Surec* ilk = ajan.ajanSureci();
  ASSERT_TRUE(k.calismaBekle(1));
  fs::remove_all(k.ev());
  ajan.ajaniBaslat();
  EXPECT_EQ(ajan.ajanSureci(), ilk);
  EXPECT_FALSE(fs::exists(k.ev()));
  EXPECT_EQ(k.calismalar().size(), 1u);
}

TEST_F(AjanTesti, CalismaZamaniYoksaDizinVeGunlukKurulmaz) {
  fs::remove(k.kaynaklar / "node");
  ajan.ajaniBaslat();
  EXPECT_EQ(ajan.ajanSureci(), nullptr);
  EXPECT_FALSE(fs::exists(k.ev()));
}

TEST_F(AjanTesti, PanelYoluKirpilirBetikOnunAltindaAranir) {
  fs::remove_all(k.kaynaklar / "ajan");
  const auto panel = k.kok / "kaynak agaci";
  dosyaYaz(panel / "ajan" / "ajan.mjs", "// ajan\n");
  dosyaYaz(k.kaynaklar / "panel-yolu.txt", "  \t" + panel.string() + " \n\n");
  EXPECT_EQ(ajan.ajanYolu(), panel.string() + "/ajan/ajan.mjs");
  ajan.ajaniBaslat();
  EXPECT_EQ(k.kayit(tekCalisma(), "cwd"), panel.string() + "/ajan\n");
}

TEST_F(AjanTesti, BosYaDaYalnizBoslukPanelYoluBetikVermez) {
  fs::remove_all(k.kaynaklar / "ajan");
  for (const char* metin : {"", " \n\t \r\n"}) {
    dosyaYaz(k.kaynaklar / "panel-yolu.txt", metin);
    EXPECT_EQ(ajan.ajanYolu(), std::nullopt);
    ajan.ajaniBaslat();
    EXPECT_EQ(ajan.ajanSureci(), nullptr);
  }
  EXPECT_TRUE(k.calismalar().empty());
}

TEST_F(AjanTesti, PanelYoluBetikYoksaBetikVermez) {
  fs::remove_all(k.kaynaklar / "ajan");
  dosyaYaz(k.kaynaklar / "panel-yolu.txt", (k.kok / "yok").string());
  EXPECT_EQ(ajan.ajanYolu(), std::nullopt);
}

TEST_F(AjanTesti, KendiligindenBitenAjanYenidenBaslatilmazSonrakiBaslatmaYenisiniKurar) {
  dosyaYaz(k.kaynaklar / "coksun", "");
  ajan.ajaniBaslat();
  const Surec* ilk = ajan.ajanSureci();
  ASSERT_NE(ilk, nullptr);
  ASSERT_TRUE(bekle([&] { return !ilk->calisiyor(); }));
  EXPECT_EQ(ajan.ajanSureci(), ilk);  // not noticed beyond the handle's own state
  EXPECT_EQ(k.calismalar().size(), 1u);
  fs::remove(k.kaynaklar / "coksun");
  ajan.ajaniBaslat();
  EXPECT_TRUE(k.calismaBekle(2));
  ASSERT_NE(ajan.ajanSureci(), nullptr);
  EXPECT_TRUE(ajan.ajanSureci()->calisiyor());
}

TEST_F(AjanTesti, DurdurmaSigtermGonderirVeTutamagiBosaltir) {
  ajan.ajaniBaslat();
  const auto pid = tekCalisma();
  ajan.ajaniDurdur();
  EXPECT_EQ(ajan.ajanSureci(), nullptr);
  EXPECT_TRUE(bekle([&] { return k.kayitVar(pid, "sigterm"); }));
  // Reaped: no zombie of it stays.
  EXPECT_TRUE(bekle([&] { return kill(std::stoi(pid), 0) != 0; }));
}

TEST_F(AjanTesti, AjanYokkenDurdurmaYalnizcaBosaltir) {
  ajan.ajaniDurdur();
  EXPECT_EQ(ajan.ajanSureci(), nullptr);
}

TEST_F(AjanTesti, BaslatilamayanAjanGunlugeTekSatirYazar) {
  chmod((k.kaynaklar / "node").c_str(), 0644);
  dosyaYaz(k.gunluk(), "eski\n");
  ajan.ajaniBaslat();
  EXPECT_EQ(ajan.ajanSureci(), nullptr);
  const auto gunluk = dosyaOku(k.gunluk());
  EXPECT_TRUE(gunluk.starts_with("eski\n[kabuk] ajan baslatilamadi: ")) << gunluk;
  EXPECT_TRUE(gunluk.ends_with("\n"));
  EXPECT_EQ(std::count(gunluk.begin(), gunluk.end(), '\n'), 2);
}

TEST_F(AjanTesti, EslestirmeNormalKoduUcuncuArgumanOlarakVerir) {
  eslestir("ab-12 cd");
  cevapBekle();
  ASSERT_TRUE(k.calismaBekle(2));  // the pairing, then the agent it starts
  bool bulundu = false;
  for (const auto& pid : k.calismalar()) {
    const auto argv = k.kayit(pid, "argv");
    if (argv.find("eslestir") == std::string::npos) continue;
    bulundu = true;
    EXPECT_EQ(argv, (k.kaynaklar / "node").string() + "\n" +
                        (k.kaynaklar / "ajan" / "ajan.mjs").string() + "\neslestir\nAB12CD\n");
    EXPECT_EQ(k.kayit(pid, "cwd"), (k.kaynaklar / "ajan").string() + "\n");
  }
  EXPECT_TRUE(bulundu);
  ASSERT_EQ(cevaplar.size(), 1u);
  EXPECT_TRUE(cevaplar[0].ok);
  EXPECT_EQ(cevaplar[0].mesaj, "eşleşti AB12CD");  // trailing newlines trimmed
  ASSERT_NE(ajan.ajanSureci(), nullptr);
}

TEST_F(AjanTesti, GecersizKodDosyaSistemineDokunmadanReddedilir) {
  for (const char* kod : {"ab-12 c", "ABCDEFGHIJKLMNOPQ", "", "--", "-e", "ğ-ü-ş-ı"}) {
    eslestir(kod);
  }
  ASSERT_EQ(cevaplar.size(), 6u);
  for (const auto& c : cevaplar) {
    EXPECT_FALSE(c.ok);
    EXPECT_EQ(c.mesaj, KOD_GECERSIZ);
  }
  EXPECT_EQ(kuyruk.bekleyen(), 0u);
  EXPECT_FALSE(fs::exists(k.kaynaklar / "kayit"));
  EXPECT_FALSE(fs::exists(k.ev()));
}

TEST_F(AjanTesti, SecenekGibiKodCalismaZamaninaSecenekOlarakGitmez) {
  eslestir("--inspect");
  cevapBekle();
  EXPECT_EQ(eslestirmeArgumanlari(), (k.kaynaklar / "node").string() + "\n" +
                                         (k.kaynaklar / "ajan" / "ajan.mjs").string() +
                                         "\neslestir\nINSPECT\n");
}

TEST_F(AjanTesti, CalismaZamaniYoksaAjanYok) {
  fs::remove(k.kaynaklar / "node");
  eslestir("ABCDEF");
  ASSERT_EQ(cevaplar.size(), 1u);
  EXPECT_FALSE(cevaplar[0].ok);
  EXPECT_EQ(cevaplar[0].mesaj, AJAN_YOK);
}

TEST_F(AjanTesti, BetikYoksaAjanYok) {
  fs::remove_all(k.kaynaklar / "ajan");
  eslestir("ABCDEF");
  ASSERT_EQ(cevaplar.size(), 1u);
  EXPECT_EQ(cevaplar[0].mesaj, AJAN_YOK);
}

TEST_F(AjanTesti, CalistirilamayanEslestirmeBildirilirAjanaDokunulmaz) {
  chmod((k.kaynaklar / "node").c_str(), 0644);
  eslestir("ABCDEF");
  EXPECT_TRUE(cevaplar.empty());  // reported from the main queue
  cevapBekle();
  EXPECT_FALSE(cevaplar[0].ok);
  EXPECT_EQ(cevaplar[0].mesaj, ESLESTIRME_CALISMADI);
  EXPECT_EQ(ajan.ajanSureci(), nullptr);
}

TEST_F(AjanTesti, SifirdanFarkliCikisHataCiktisiniBildirirAjaniBaslatmaz) {
  eslestir("hata-123");
  cevapBekle();
  EXPECT_FALSE(cevaplar[0].ok);
  EXPECT_EQ(cevaplar[0].mesaj, "reddedildi HATA123");
  EXPECT_EQ(ajan.ajanSureci(), nullptr);
}

TEST_F(AjanTesti, CalisanAjanVarkenBasariliEslestirmeOnuOlduguGibiBirakir) {
  ajan.ajaniBaslat();
  const Surec* ilk = ajan.ajanSureci();
  ASSERT_TRUE(k.calismaBekle(1));
  eslestir("ABCDEF");
  cevapBekle();
  EXPECT_TRUE(cevaplar[0].ok);
  EXPECT_EQ(ajan.ajanSureci(), ilk);
  EXPECT_EQ(k.calismalar().size(), 2u);
}

TEST_F(AjanTesti, BoruyaSigmayanEslestirmeCiktisiEksiksizBildirilir) {
  eslestir("UZUN12");
  cevapBekle();
  EXPECT_TRUE(cevaplar[0].ok);
  EXPECT_EQ(cevaplar[0].mesaj, std::string(300000, 'x'));
}

TEST_F(AjanTesti, IkinciEslestirmeBirincisiSurerkenKendiBasinaBildirir) {
  eslestir("BEKLE1");
  eslestir("IKINCI");
  cevapBekle(1);
  ASSERT_EQ(cevaplar.size(), 1u);
  EXPECT_EQ(cevaplar[0].mesaj, "eşleşti IKINCI");
  dosyaYaz(k.kaynaklar / "birak", "");
  cevapBekle(2);
  EXPECT_EQ(cevaplar[1].mesaj, "bekledi BEKLE1");
  EXPECT_TRUE(cevaplar[1].ok);
}

// Each pairing reports to the completion it was given, also when they overlap.
TEST_F(AjanTesti, HerEslestirmeKendiTamamlayicisinaBildirir) {
  std::vector<std::string> birinci, ikinci;
  ajan.ajanEslestir("BEKLE1", [&](bool, const std::string& m) { birinci.push_back(m); });
  ajan.ajanEslestir("IKINCI", [&](bool, const std::string& m) { ikinci.push_back(m); });
  ajan.ajanEslestir("x", [&](bool, const std::string& m) { ikinci.push_back(m); });
  EXPECT_EQ(ikinci, (std::vector<std::string>{KOD_GECERSIZ}));
  ASSERT_TRUE(bekle([&] {
    kuyruk.calistir();
    return ikinci.size() == 2;
  }));
  EXPECT_EQ(ikinci[1], "eşleşti IKINCI");
  EXPECT_TRUE(birinci.empty());
  dosyaYaz(k.kaynaklar / "birak", "");
  ASSERT_TRUE(bekle([&] {
    kuyruk.calistir();
    return !birinci.empty();
  }));
  EXPECT_EQ(birinci, (std::vector<std::string>{"bekledi BEKLE1"}));
}

// With the platform's processes the running agent is recorded, and a start first stops the
// agent an earlier shell recorded.
class KayitliAjanTesti : public ::testing::Test {
 protected:
  KayitliAjanTesti() : ajan(k.yerler(), kuyruk, &platform) {}
  ~KayitliAjanTesti() override { ajan.ajaniDurdur(); }

  fs::path kayitYolu() const { return fs::path(k.yerler().veriDizini) / "ajan.pid"; }

  AjanKurulumu k;
  sahte::Kuyruk kuyruk;
  sahte::SurecPlatformuSahte platform;
  Ajan ajan;
};

TEST_F(KayitliAjanTesti, BaslayanAjanNumarasiVeKimligiyleKaydedilir) {
  platform.herkes = SurecKimligi{"31337", "/usr/bin/node"};
  ajan.ajaniBaslat();
  ASSERT_NE(ajan.ajanSureci(), nullptr);
  EXPECT_EQ(platform.baslatmalar, 1);
  EXPECT_EQ(dosyaOku(kayitYolu()),
            std::to_string(ajan.ajanSureci()->numara()) + "\n31337\n/usr/bin/node\n");
  ASSERT_TRUE(k.calismaBekle(1));
  EXPECT_EQ(k.calismalar(), std::vector<std::string>{std::to_string(ajan.ajanSureci()->numara())});
}

TEST_F(KayitliAjanTesti, OncekiKabugunKaydettigiAjanDurdurulurBeklenmez) {
  dosyaYaz(kayitYolu(), "4242\n777\n/usr/bin/node\n");
  ajan.ajaniBaslat();
  ASSERT_EQ(platform.sonlandirilanlar.size(), 1u);
  EXPECT_EQ(platform.sonlandirilanlar[0].numara, 4242);
  EXPECT_EQ(platform.sonlandirilanlar[0].kimlik, (SurecKimligi{"777", "/usr/bin/node"}));
  ASSERT_NE(ajan.ajanSureci(), nullptr);
  EXPECT_EQ(kayitOku(dosyaOku(kayitYolu()))->numara, ajan.ajanSureci()->numara());
}

TEST_F(KayitliAjanTesti, BozukKayitKimseyiDurdurmazYenisiYazilir) {
  dosyaYaz(kayitYolu(), "-1\n777\n/usr/bin/node\n");
  ajan.ajaniBaslat();
  EXPECT_TRUE(platform.sonlandirilanlar.empty());
  ASSERT_NE(ajan.ajanSureci(), nullptr);
  EXPECT_EQ(kayitOku(dosyaOku(kayitYolu()))->numara, ajan.ajanSureci()->numara());
}

TEST_F(KayitliAjanTesti, KimligiOkunamayanAjanKaydedilmez) {
  platform.herkes.reset();
  ajan.ajaniBaslat();
  ASSERT_NE(ajan.ajanSureci(), nullptr);
  EXPECT_FALSE(fs::exists(kayitYolu()));
}

TEST_F(KayitliAjanTesti, DurdurulanAjaninKaydiSilinir) {
  ajan.ajaniBaslat();
  ASSERT_TRUE(fs::exists(kayitYolu()));
  ajan.ajaniDurdur();
  EXPECT_FALSE(fs::exists(kayitYolu()));
}

TEST_F(KayitliAjanTesti, BaslatilamayanAjanEskiKaydiBirakmaz) {
  dosyaYaz(kayitYolu(), "4242\n777\n/usr/bin/node\n");
  chmod((k.kaynaklar / "node").c_str(), 0644);  // not executable, even for root
  ajan.ajaniBaslat();
  EXPECT_EQ(ajan.ajanSureci(), nullptr);
  EXPECT_EQ(platform.sonlandirilanlar.size(), 1u);
  EXPECT_FALSE(fs::exists(kayitYolu()));
}

TEST_F(AjanTesti, PlatformsuzAjanKaydedilmez) {
  ajan.ajaniBaslat();
  ASSERT_NE(ajan.ajanSureci(), nullptr);
  EXPECT_FALSE(fs::exists(fs::path(k.yerler().veriDizini) / "ajan.pid"));
}

}  // namespace
}  // namespace nevo
