// Page message handler.
#include <gtest/gtest.h>

#include "fakes/uygulama_duzenegi.hpp"

namespace nevo {
namespace {

struct SayfaMesajiTesti : ::testing::Test {
  SayfaMesajiTesti() { d.paketliAc(); }
  sahte::UygulamaDuzenegi d;
};

TEST_F(SayfaMesajiTesti, NesneOlmayanGovdeHicbirSeyYapmaz) {
  for (const char* govde :
       {R"("bildirim")", R"(["bildirim"])", "42", "null", "true", "{}", "not json", ""}) {
    d.mesaj(govde);
  }
  d.kuyruk.calistir();
  EXPECT_TRUE(d.bildirim.gonderilenler.empty());
  EXPECT_TRUE(d.web().betikler.empty());
  EXPECT_TRUE(d.sistem.disaridaAcilanlar.empty());
}

TEST_F(SayfaMesajiTesti, TurYoksaYaDaMetinDegilseYokSayilir) {
  d.mesaj(R"({"baslik":"x"})");
  d.mesaj(R"({"tur":7})");
  d.mesaj(R"({"tur":["bildirim"]})");
  EXPECT_TRUE(d.bildirim.gonderilenler.empty());
}

TEST_F(SayfaMesajiTesti, HttpAcilmazHttpsAcilirSemaBuyukHarfliyseYokSayilir) {
  d.mesaj(R"({"tur":"tarayicida-ac","url":"http://nevo.ai/a"})");
  EXPECT_TRUE(d.sistem.disaridaAcilanlar.empty());
  d.mesaj(R"({"tur":"tarayicida-ac","url":"https://nevo.ai/a"})");
  EXPECT_EQ(d.sistem.disaridaAcilanlar, (std::vector<std::string>{"https://nevo.ai/a"}));
  d.mesaj(R"({"tur":"tarayicida-ac","url":"HTTPS://nevo.ai/b"})");
  d.mesaj(R"({"tur":"tarayicida-ac","url":"Https://nevo.ai/b"})");
  EXPECT_EQ(d.sistem.disaridaAcilanlar.size(), 1u);
}

TEST_F(SayfaMesajiTesti, TarayicidaAcUrlsizVeCozulemeyenYokSayilir) {
  for (const char* govde : {R"({"tur":"tarayicida-ac"})", R"({"tur":"tarayicida-ac","url":5})",
                            R"({"tur":"tarayicida-ac","url":"https://a b/ c"})",
                            R"({"tur":"tarayicida-ac","url":"mailto:a@b.c"})",
                            R"({"tur":"tarayicida-ac","url":"file:///etc/passwd"})",
                            R"({"tur":"tarayicida-ac","url":"nevo://x"})"}) {
    d.mesaj(govde);
  }
  EXPECT_TRUE(d.sistem.disaridaAcilanlar.empty());
}

TEST_F(SayfaMesajiTesti, AltCerceveninMesajiDinlenmezUstCerceveninkiDinlenir) {
  const MesajKaynagi altCerceve{false, std::string("app.nevo.ai")};
  for (const char* govde : {R"({"tur":"tarayicida-ac","url":"https://nevo.ai/a"})",
                            R"({"tur":"bildirim","baslik":"x"})", R"({"tur":"bildirim-durum"})",
                            R"({"tur":"bildirim-izin-iste"})", R"({"tur":"bildirim-ayarlari"})",
                            R"({"tur":"dosya-kaydet","ad":".bashrc","icerik":"x"})",
                            R"({"tur":"masaustu","eylem":"durum"})",
                            R"({"tur":"masaustu","eylem":"uyanikTut","deger":true})",
                            R"({"tur":"masaustu-is","is":"a","durum":"basladi"})",
                            R"({"tur":"ajan-eslestir","kod":"ABC123"})"}) {
    d.mesaj(govde, altCerceve);
  }
  d.kuyruk.calistir();
  EXPECT_TRUE(d.sistem.disaridaAcilanlar.empty());
  EXPECT_TRUE(d.bildirim.gonderilenler.empty());
  EXPECT_TRUE(d.kayitPaneli.onerilenler.empty());
  EXPECT_TRUE(d.web().betikler.empty());
  d.mesaj(R"({"tur":"tarayicida-ac","url":"https://nevo.ai/a"})", {true, "app.nevo.ai"});
  EXPECT_EQ(d.sistem.disaridaAcilanlar.size(), 1u);
}

TEST_F(SayfaMesajiTesti, BaskaHosttakiUstCerceveDinlenmezHostHarfleriOnemsiz) {
  d.mesaj(R"({"tur":"bildirim"})", {true, "evil.supabase.co"});
  d.mesaj(R"({"tur":"bildirim"})", {true, "app.nevo.ai.evil.com"});
  EXPECT_TRUE(d.bildirim.gonderilenler.empty());
  d.mesaj(R"({"tur":"bildirim"})", {true, "App.Nevo.AI"});
  EXPECT_EQ(d.bildirim.gonderilenler.size(), 1u);
}

TEST_F(SayfaMesajiTesti, YarimKalmisEmojiMesajiDusurmezYerineYedekKarakterGelir) {
  d.mesaj(R"({"tur":"bildirim","baslik":"a\ud83d","govde":"\ude00b\ud83d\ude00"})");
  d.mesaj("{\"tur\":\"bildirim\",\"baslik\":\"c\xED\xA0\xBD\"}");
  ASSERT_EQ(d.bildirim.gonderilenler.size(), 2u);
  EXPECT_EQ(d.bildirim.gonderilenler[0].baslik, "a\uFFFD");
  EXPECT_EQ(d.bildirim.gonderilenler[0].govde, "\uFFFDb\U0001F600");
  EXPECT_EQ(d.bildirim.gonderilenler[1].baslik, "c\uFFFD\uFFFD\uFFFD");
}

TEST_F(SayfaMesajiTesti, YalnizTurluBildirimNevoBaslikliBosGovdeliDir) {
  d.mesaj(R"({"tur":"bildirim"})");
  ASSERT_EQ(d.bildirim.gonderilenler.size(), 1u);
  EXPECT_EQ(d.bildirim.gonderilenler[0].baslik, "Nevo");
  EXPECT_EQ(d.bildirim.gonderilenler[0].govde, "");
}

TEST_F(SayfaMesajiTesti, AlanVarsayilanlariBirbirindenBagimsizdir) {
  d.mesaj(R"({"tur":"bildirim","baslik":"Bitti","govde":3})");
  d.mesaj(R"({"tur":"bildirim","baslik":false,"govde":"gövde"})");
  ASSERT_EQ(d.bildirim.gonderilenler.size(), 2u);
  EXPECT_EQ(d.bildirim.gonderilenler[0].baslik, "Bitti");
  EXPECT_EQ(d.bildirim.gonderilenler[0].govde, "");
  EXPECT_EQ(d.bildirim.gonderilenler[1].baslik, "Nevo");
  EXPECT_EQ(d.bildirim.gonderilenler[1].govde, "gövde");
}

TEST_F(SayfaMesajiTesti, YalnizTurluDosyaKaydetNevoJsonOnerirVeBosDosyaYazar) {
  d.mesaj(R"({"tur":"dosya-kaydet"})");
  ASSERT_EQ(d.kayitPaneli.onerilenler, (std::vector<std::string>{"nevo.json"}));
  const std::string yol = ::testing::TempDir() + "sayfa_mesaji_bos.json";
  d.kayitPaneli.bitti(yol);
  std::FILE* f = std::fopen(yol.c_str(), "rb");
  ASSERT_NE(f, nullptr);
  EXPECT_EQ(std::fgetc(f), EOF);
  std::fclose(f);
  std::remove(yol.c_str());
}

TEST_F(SayfaMesajiTesti, KodsuzAjanEslestirBosKodlaEslestirir) {
  d.mesaj(R"({"tur":"ajan-eslestir"})");
  d.mesaj(R"({"tur":"ajan-eslestir","kod":123456})");
  d.mesaj(R"({"tur":"ajan-eslestir","kod":"ab-12 cd"})");
  EXPECT_EQ(d.eslestirme.kodlar, (std::vector<std::string>{"", "", "ab-12 cd"}));
}

// Each pairing's outcome returns to the bridge that asked and goes into the page at once,
// without waiting for the main queue; outcomes arrive in the order the runs end.
TEST_F(SayfaMesajiTesti, EslestirmeSonucuSoranKopruyeDonerVeHemenCalisir) {
  d.mesaj(R"({"tur":"ajan-eslestir","kod":"BIRINCI"})");
  d.mesaj(R"({"tur":"ajan-eslestir","kod":"IKINCI"})");
  ASSERT_EQ(d.eslestirme.bitinceler.size(), 2u);
  d.eslestirme.bitinceler[1](false, "b");
  d.eslestirme.bitinceler[0](true, "1234");
  EXPECT_EQ(d.web().betikler,
            (std::vector<std::string>{
                "window.nevoEslestirmeSonucu && window.nevoEslestirmeSonucu(false, b)",
                "window.nevoEslestirmeSonucu && window.nevoEslestirmeSonucu(true, 1234)"}));
}

TEST_F(SayfaMesajiTesti, TurAdlariBuyukKucukHarfeDuyarlidir) {
  d.mesaj(R"({"tur":"Masaustu","eylem":"durum"})");
  d.mesaj(R"({"tur":"masaustu ","eylem":"durum"})");
  d.mesaj(R"({"tur":"BILDIRIM"})");
  d.kuyruk.calistir();
  EXPECT_TRUE(d.web().betikler.empty());
  EXPECT_TRUE(d.bildirim.gonderilenler.empty());
}

TEST_F(SayfaMesajiTesti, PaketKimligiYoksaBildirimDurumuHemenDesteklenmiyorDer) {
  d.sistem.kimlik.reset();
  d.mesaj(R"({"tur":"bildirim-durum"})");
  d.mesaj(R"({"tur":"bildirim-izin-iste"})");
  d.mesaj(R"({"tur":"bildirim"})");
  d.kuyruk.calistir();
  const std::string betik =
      "window.nevoBildirimDurumu && window.nevoBildirimDurumu('desteklenmiyor')";
  EXPECT_EQ(d.web().betikler, (std::vector<std::string>{betik, betik}));
  EXPECT_EQ(d.bildirim.yetkiOkumalari + d.bildirim.istemler, 0);
  EXPECT_TRUE(d.bildirim.gonderilenler.empty());
}

TEST_F(SayfaMesajiTesti, BildirimAyarlariSisteminAyarlariniAcarCevapVermez) {
  d.mesaj(R"({"tur":"bildirim-ayarlari"})");
  d.kuyruk.calistir();
  EXPECT_EQ(d.bildirim.ayarAcmalar, 1);
  EXPECT_TRUE(d.web().betikler.empty());
}

TEST_F(SayfaMesajiTesti, MasaustuVeIsMesajlariKopruyeGider) {
  d.tercih.uyanikTut(true);
  d.mesaj(R"({"tur":"masaustu-is","is":"a","acik":true})");
  EXPECT_TRUE(d.masaustu->uyku().aktif());
  d.mesaj(R"({"tur":"masaustu","istek":3,"eylem":"durum"})");
  d.kuyruk.calistir();
  ASSERT_EQ(d.web().betikler.size(), 1u);
  EXPECT_EQ(
      d.web().betikler[0].rfind("window.nevoMasaustuCevap && window.nevoMasaustuCevap(3, '", 0),
      0u);
}

TEST_F(SayfaMesajiTesti, BilinmeyenTurSessizceDusurulur) {
  d.mesaj(R"({"tur":"yeni-sohbet"})");
  d.kuyruk.calistir();
  EXPECT_TRUE(d.web().betikler.empty());
  EXPECT_TRUE(d.eslestirme.kodlar.empty());
}

// Only a page on the app address's host may talk to the shell.
TEST_F(SayfaMesajiTesti, YalnizAdresinHostundakiSayfaKonusabilir) {
  d.web().suankiAdres = "https://baska.supabase.co/auth";
  d.mesaj(R"({"tur":"tarayicida-ac","url":"https://kotu.example/"})");
  d.mesaj(R"({"tur":"masaustu","eylem":"menu-cubugu","deger":true})");
  d.web().suankiAdres = "about:blank";
  d.mesaj(R"({"tur":"bildirim"})");
  d.web().suankiAdres.reset();
  d.mesaj(R"({"tur":"bildirim"})");
  d.kuyruk.calistir();
  EXPECT_TRUE(d.sistem.disaridaAcilanlar.empty());
  EXPECT_FALSE(d.tercih.menuCubugu());
  EXPECT_TRUE(d.bildirim.gonderilenler.empty());
  d.web().suankiAdres = "https://APP.nevo.ai/x";  // hosts compare without case
  d.mesaj(R"({"tur":"bildirim"})");
  EXPECT_EQ(d.bildirim.gonderilenler.size(), 1u);
}

}  // namespace
}  // namespace nevo
