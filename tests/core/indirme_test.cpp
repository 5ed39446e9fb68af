// Downloads: which ones may go on, the save dialog, the temporary name, progress and the end.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "app/indirme/indirme_izni.hpp"
#include "app/indirme/indirme_metinleri.hpp"
#include "app/indirme/indirmeler.hpp"
#include "fakes/gecici_dosyalar.hpp"
#include "fakes/uygulama_duzenegi.hpp"

namespace nevo {
namespace {

namespace fs = std::filesystem;

TEST(IndirmeIzni, YalnizcaUygulamaninSayfasiKendiIceriginiIndirir) {
  const std::string sayfa = "https://app.nevo.ai/home";
  const std::string uygulama = sahte::ADRES;
  EXPECT_TRUE(indirmeIzinli(sayfa, "https://app.nevo.ai/dosya/1", uygulama));
  EXPECT_TRUE(indirmeIzinli(sayfa, "HTTPS://APP.nevo.ai/dosya/1", uygulama));
  EXPECT_TRUE(indirmeIzinli(sayfa, "blob:https://app.nevo.ai/9f1c-44", uygulama));
  EXPECT_FALSE(indirmeIzinli(sayfa, "https://baska.example/ek", uygulama));
  EXPECT_FALSE(indirmeIzinli(sayfa, "blob:https://baska.example/9f1c", uygulama));
  EXPECT_FALSE(indirmeIzinli(sayfa, "blob:null/9f1c", uygulama));
  EXPECT_FALSE(indirmeIzinli(sayfa, "https://app.nevo.ai:8443/ek", uygulama));
  EXPECT_TRUE(indirmeIzinli(sayfa, "https://app.nevo.ai:443/ek", uygulama));
  EXPECT_FALSE(indirmeIzinli(sayfa, "http://app.nevo.ai/ek", uygulama));
  EXPECT_FALSE(indirmeIzinli(sayfa, "blob:https://app.nevo.ai:8443/9f1c", uygulama));
  EXPECT_FALSE(indirmeIzinli(sayfa, "data:text/plain,x", uygulama));
  EXPECT_FALSE(indirmeIzinli(sayfa, "file:///etc/passwd", uygulama));
  EXPECT_FALSE(indirmeIzinli(sayfa, "", uygulama));
  EXPECT_FALSE(indirmeIzinli("https://proje.supabase.co/giris", "https://app.nevo.ai/x", uygulama));
  EXPECT_FALSE(indirmeIzinli(std::nullopt, "https://app.nevo.ai/x", uygulama));
}

TEST(IndirmeIzni, KullanicininIstedigineUygulamaninSayfasiYeter) {
  const std::string uygulama = sahte::ADRES;
  EXPECT_TRUE(uygulamaSayfasinda("https://app.nevo.ai/home", uygulama));
  EXPECT_FALSE(uygulamaSayfasinda("https://proje.supabase.co/giris", uygulama));
  EXPECT_FALSE(uygulamaSayfasinda("https://app.nevo.ai:8443/home", uygulama));
  EXPECT_FALSE(uygulamaSayfasinda(std::nullopt, uygulama));
}

TEST(IndirmeIzni, EkOlarakGelenYanitKaydedilir) {
  EXPECT_TRUE(ekOlarakMi("attachment"));
  EXPECT_TRUE(ekOlarakMi(" Attachment; filename=\"a.txt\""));
  EXPECT_FALSE(ekOlarakMi("inline; filename=\"a.txt\""));
  EXPECT_FALSE(ekOlarakMi("attachments"));
  EXPECT_FALSE(ekOlarakMi(""));
}

TEST(IndirmeMetinleri, YuzdeIsaretiOndeYazilir) {
  EXPECT_EQ(ilerlemeMetni("rapor.pdf", 40), "rapor.pdf · %40");
  EXPECT_EQ(ilerlemeMetni("rapor.pdf", std::nullopt), "rapor.pdf");
  EXPECT_EQ(indirmeYuzdesi(50, 200), 25);
  EXPECT_EQ(indirmeYuzdesi(500, 200), 100);
  EXPECT_EQ(indirmeYuzdesi(5, std::nullopt), std::nullopt);
  EXPECT_EQ(indirmeYuzdesi(5, 0), std::nullopt);
}

struct IndirmeSahte final : Indirme {
  void hedefVer(const std::string& yol) override { hedef = yol; }
  void iptal() override { ++iptaller; }
  std::string hedef;
  int iptaller = 0;
};

struct IndirmeYonetimi : ::testing::Test {
  IndirmeYonetimi() {
    d.paketliAc();
    dizin = sahte::bosDizin("indirme_");
  }
  ~IndirmeYonetimi() override { fs::remove_all(dizin); }

  IndirmeOlaylari& olaylar() { return *d.kurucu.olaylar->indirmeler().lock(); }
  std::uint64_t baslat(std::shared_ptr<IndirmeSahte> i,
                       const std::string& adres = "https://app.nevo.ai/ek/1") {
    return olaylar().basladi(std::move(i), adres);
  }
  // A download whose place the user chose: `ad` in the test's folder.
  std::uint64_t secilmis(std::shared_ptr<IndirmeSahte> i, const std::string& ad) {
    const auto no = baslat(i);
    olaylar().hedefSor(no, ad);
    std::exchange(d.kayitPaneli.bitti, nullptr)((dizin / ad).string());
    return no;
  }

  sahte::UygulamaDuzenegi d;
  fs::path dizin;
};

TEST_F(IndirmeYonetimi, KaydetmePenceresiOnerilenAdlaAcilir) {
  auto i = std::make_shared<IndirmeSahte>();
  const auto no = baslat(i);
  ASSERT_NE(no, 0u);
  EXPECT_TRUE(d.kayitPaneli.onerilenler.empty()) << "adı motor sorunca sorulur";
  olaylar().hedefSor(no, "rapor ş.pdf");
  EXPECT_EQ(d.kayitPaneli.onerilenler, (std::vector<std::string>{"rapor ş.pdf"}));
  EXPECT_TRUE(i->hedef.empty());
}

TEST_F(IndirmeYonetimi, YanindakiGeciciAdaYazilirBitinceAdinaKavusur) {
  auto i = std::make_shared<IndirmeSahte>();
  const auto no = secilmis(i, "rapor.pdf");
  const fs::path gecici(i->hedef);
  EXPECT_EQ(gecici.parent_path(), dizin);
  EXPECT_TRUE(gecici.filename().string().starts_with(".rapor.pdf.")) << gecici;
  std::ofstream(gecici) << "icerik";
  olaylar().ilerledi(no, 6, 6);
  EXPECT_FALSE(fs::exists(dizin / "rapor.pdf"));
  olaylar().bitti(no);
  EXPECT_EQ(sahte::dosyaOku(dizin / "rapor.pdf"), "icerik");
  EXPECT_EQ(sahte::girdiSayisi(dizin), 1u);
  EXPECT_EQ(olaylar().basladi(std::make_shared<IndirmeSahte>(), "https://app.nevo.ai/2"), 2u);
}

TEST_F(IndirmeYonetimi, VarOlanDosyaPencereninOnayiylaDegisir) {
  std::ofstream(dizin / "var.txt") << "eski";
  auto i = std::make_shared<IndirmeSahte>();
  const auto no = secilmis(i, "var.txt");
  EXPECT_EQ(sahte::dosyaOku(dizin / "var.txt"), "eski") << "bitene dek dokunulmaz";
  std::ofstream(i->hedef) << "yeni";
  olaylar().bitti(no);
  EXPECT_EQ(sahte::dosyaOku(dizin / "var.txt"), "yeni");
}

TEST_F(IndirmeYonetimi, BitinceBildirimKlasoruDosyaSeciliGosterir) {
  auto i = std::make_shared<IndirmeSahte>();
  const auto no = secilmis(i, "a.txt");
  std::ofstream(i->hedef) << "x";
  olaylar().bitti(no);
  ASSERT_FALSE(d.bildirim.isBildirimleri.empty());
  const auto& son = d.bildirim.isBildirimleri.back();
  EXPECT_EQ(son.baslik, "İndirme tamamlandı");
  EXPECT_EQ(son.govde, "a.txt");
  EXPECT_EQ(son.dugme, "Klasörde göster");
  EXPECT_EQ(son.kimlik, d.bildirim.isBildirimleri.front().kimlik) << "ilerlemenin yerine geçer";
  ASSERT_TRUE(son.tiklaninca);
  son.tiklaninca();
  EXPECT_EQ(d.sistem.klasordeGosterilenler, (std::vector<std::string>{(dizin / "a.txt").string()}));
}

TEST_F(IndirmeYonetimi, IlerlemeBirSaniyedenSonraHerOndaBirdeSaniyedeBirGuncellenir) {
  auto i = std::make_shared<IndirmeSahte>();
  const auto no = secilmis(i, "b.bin");
  olaylar().ilerledi(no, 30, 200);
  EXPECT_TRUE(d.bildirim.isBildirimleri.empty()) << "hemen biten indirme ilerleme göstermez";
  d.kuyruk.ilerle(1);
  olaylar().ilerledi(no, 40, 200);  // a new tenth, but within the second
  d.kuyruk.ilerle(0.9);
  EXPECT_EQ(d.bildirim.isBildirimleri.size(), 1u);
  d.kuyruk.ilerle(0.1);
  d.kuyruk.ilerle(3);
  olaylar().ilerledi(no, 42, 200);  // the same tenth
  olaylar().ilerledi(no, 60, 200);
  olaylar().ilerledi(no, 80, 200);  // shown once the second is up
  std::vector<std::string> govdeler;
  for (const auto& b : d.bildirim.isBildirimleri) {
    EXPECT_EQ(b.baslik, "İndiriliyor");
    EXPECT_EQ(b.dugme, "");
    govdeler.push_back(b.govde);
  }
  EXPECT_EQ(govdeler, (std::vector<std::string>{"b.bin · %15", "b.bin · %20", "b.bin · %30"}));
  d.kuyruk.ilerle(1);
  EXPECT_EQ(d.bildirim.isBildirimleri.back().govde, "b.bin · %40");
}

TEST_F(IndirmeYonetimi, BoyutuBilinmeyenIndirmeBirKezGosterilir) {
  auto i = std::make_shared<IndirmeSahte>();
  const auto no = secilmis(i, "c.bin");
  olaylar().ilerledi(no, 10, std::nullopt);
  d.kuyruk.ilerle(1);
  olaylar().ilerledi(no, 20, std::nullopt);
  d.kuyruk.ilerle(5);
  ASSERT_EQ(d.bildirim.isBildirimleri.size(), 1u);
  EXPECT_EQ(d.bildirim.isBildirimleri[0].govde, "c.bin");
}

TEST_F(IndirmeYonetimi, PaketsizUygulamaBildirimGondermez) {
  d.sistem.kimlik.reset();
  auto i = std::make_shared<IndirmeSahte>();
  const auto no = secilmis(i, "d.bin");
  olaylar().ilerledi(no, 10, 20);
  d.kuyruk.ilerle(1);
  std::ofstream(i->hedef) << "x";
  olaylar().bitti(no);
  EXPECT_TRUE(d.bildirim.isBildirimleri.empty());
  EXPECT_TRUE(fs::exists(dizin / "d.bin"));
}

TEST_F(IndirmeYonetimi, BaskaKokenIptalEdilirPencereAcilmaz) {
  auto i = std::make_shared<IndirmeSahte>();
  EXPECT_EQ(baslat(i, "blob:http://localhost:8000/5e1"), 0u);
  EXPECT_EQ(i->iptaller, 1);
  olaylar().hedefSor(0, "x");
  EXPECT_TRUE(d.kayitPaneli.onerilenler.empty());
}

TEST_F(IndirmeYonetimi, BaskaSitedeykenIndirmeOlmaz) {
  d.web().suankiAdres = "https://proje.supabase.co/giris";
  auto i = std::make_shared<IndirmeSahte>();
  EXPECT_EQ(baslat(i), 0u);
  EXPECT_EQ(i->iptaller, 1);
}

// An image the user chose to save from the context menu may live on another origin.
constexpr const char* RESIM = "https://cdn.baska.example/r/1.png";

TEST_F(IndirmeYonetimi, KullanicininKaydettigiResimBaskaKokendenBirKezIndirilir) {
  olaylar().kullaniciIstedi(RESIM);
  auto ilk = std::make_shared<IndirmeSahte>();
  const auto no = baslat(ilk, RESIM);
  ASSERT_NE(no, 0u);
  olaylar().hedefSor(no, "1.png");
  EXPECT_EQ(d.kayitPaneli.onerilenler, (std::vector<std::string>{"1.png"}));
  EXPECT_EQ(ilk->iptaller, 0);
  auto tekrar = std::make_shared<IndirmeSahte>();
  EXPECT_EQ(baslat(tekrar, RESIM), 0u) << "izin bir kez kullanılır";
  EXPECT_EQ(tekrar->iptaller, 1);
}

TEST_F(IndirmeYonetimi, IstekYalnizcaKendiAdresineIzinVerir) {
  olaylar().kullaniciIstedi(RESIM);
  auto sayfaninki = std::make_shared<IndirmeSahte>();
  EXPECT_EQ(baslat(sayfaninki, "https://cdn.baska.example/r/2.png"), 0u);
  EXPECT_EQ(baslat(std::make_shared<IndirmeSahte>(), "blob:https://baska.example/9f1c"), 0u);
  EXPECT_EQ(sayfaninki->iptaller, 1);
  EXPECT_NE(baslat(std::make_shared<IndirmeSahte>(), RESIM), 0u)
      << "başka adresin indirmesi isteği harcamaz";
}

TEST_F(IndirmeYonetimi, GelmeyenIstekSuresiDoluncaUnutulur) {
  const std::string sonraki = "https://cdn.baska.example/r/3.png";
  olaylar().kullaniciIstedi(RESIM);
  d.kuyruk.ilerle(Indirmeler::ISTEK_OMRU / 2);
  olaylar().kullaniciIstedi(sonraki);
  d.kuyruk.ilerle(Indirmeler::ISTEK_OMRU / 2);
  EXPECT_EQ(baslat(std::make_shared<IndirmeSahte>(), RESIM), 0u);
  EXPECT_NE(baslat(std::make_shared<IndirmeSahte>(), sonraki), 0u);
}

TEST_F(IndirmeYonetimi, BaskaSitedeykenIstenenResimDeIndirilmez) {
  d.web().suankiAdres = "https://proje.supabase.co/giris";
  olaylar().kullaniciIstedi(RESIM);
  auto i = std::make_shared<IndirmeSahte>();
  EXPECT_EQ(baslat(i, RESIM), 0u);
  EXPECT_EQ(i->iptaller, 1);
}

TEST_F(IndirmeYonetimi, PencereAcikkenGelenIndirmeSessizceIptalEdilir) {
  auto ilk = std::make_shared<IndirmeSahte>();
  auto ikinci = std::make_shared<IndirmeSahte>();
  olaylar().hedefSor(baslat(ilk), "ilk");
  olaylar().hedefSor(baslat(ikinci), "ikinci");
  EXPECT_EQ(ikinci->iptaller, 1);
  EXPECT_EQ(d.kayitPaneli.onerilenler, (std::vector<std::string>{"ilk"}));
  // The page's file save waits its turn the same way.
  d.mesaj(R"({"tur":"dosya-kaydet","ad":"sayfa","icerik":"x"})");
  EXPECT_EQ(d.kayitPaneli.onerilenler.size(), 1u);
  std::exchange(d.kayitPaneli.bitti, nullptr)((dizin / "ilk").string());
  EXPECT_EQ(ilk->iptaller, 0);
  EXPECT_FALSE(ilk->hedef.empty());
}

TEST_F(IndirmeYonetimi, VazgecilenIndirmeIptalEdilir) {
  auto i = std::make_shared<IndirmeSahte>();
  olaylar().hedefSor(baslat(i), "a");
  std::exchange(d.kayitPaneli.bitti, nullptr)(std::nullopt);
  EXPECT_EQ(i->iptaller, 1);
  EXPECT_TRUE(i->hedef.empty());
  EXPECT_EQ(sahte::girdiSayisi(dizin), 0u);
}

TEST_F(IndirmeYonetimi, BasarisizIndirmeIzBirakmaz) {
  auto i = std::make_shared<IndirmeSahte>();
  const auto no = secilmis(i, "e.bin");
  olaylar().ilerledi(no, 1, 2);
  d.kuyruk.ilerle(1);
  std::ofstream(i->hedef + ".wkdownload") << "yarim";
  olaylar().basarisiz(no);
  olaylar().bitti(no);  // the engine ends every download with "finished"
  EXPECT_EQ(sahte::girdiSayisi(dizin), 0u);
  ASSERT_EQ(d.bildirim.geriCekilenler.size(), 1u);
  EXPECT_EQ(d.bildirim.geriCekilenler[0], d.bildirim.isBildirimleri.back().kimlik);
}

TEST_F(IndirmeYonetimi, KapanirkenSurenlerIptalEdilirDosyalariSilinir) {
  auto secilen = std::make_shared<IndirmeSahte>();
  auto bekleyen = std::make_shared<IndirmeSahte>();
  secilmis(secilen, "f.bin");
  std::ofstream(secilen->hedef) << "yarim";
  olaylar().hedefSor(baslat(bekleyen), "g.bin");
  d.uygulama->applicationWillTerminate();
  EXPECT_EQ(secilen->iptaller, 1);
  EXPECT_EQ(bekleyen->iptaller, 1);
  EXPECT_EQ(sahte::girdiSayisi(dizin), 0u);
  std::exchange(d.kayitPaneli.bitti, nullptr)((dizin / "g.bin").string());
  EXPECT_TRUE(bekleyen->hedef.empty()) << "kapanırken seçilen yer artık kullanılmaz";
}

}  // namespace
}  // namespace nevo
