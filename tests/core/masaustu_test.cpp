// Desktop bridge.
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <utility>

#include "bridge/sayfa_cagrilari.hpp"
#include "fakes/uygulama_duzenegi.hpp"

namespace nevo {
namespace {

using nlohmann::json;

struct MasaustuTesti : ::testing::Test {
  MasaustuTesti() { d.betikleriTopla(); }
  void istek(const char* govde) { d.masaustu->mesaj(json::parse(govde)); }
  json sonDurum() const {
    const auto& b = d.betikler.back();
    const auto bas = b.find(", '") + 3;
    return json::parse(b.substr(bas, b.size() - 2 - bas));  // this JSON has no escapes
  }
  sahte::MasaustuDuzenegi d;
};

TEST_F(MasaustuTesti, DurumIstegiTamOlarakBirBetikUretir) {
  istek(R"({"tur":"masaustu","istek":7,"eylem":"durum"})");
  ASSERT_EQ(d.betikler.size(), 1u);
  EXPECT_EQ(d.betikler[0], "window.nevoMasaustuCevap && window.nevoMasaustuCevap(7, '" +
                               jsKacir(d.masaustu->durumJSON()) + "')");
}

TEST_F(MasaustuTesti, IsteksizIstekSifirNumarasiylaCevaplanir) {
  istek(R"({"eylem":"durum"})");
  istek(R"({"eylem":"durum","istek":"7"})");
  istek(R"({"eylem":"durum","istek":7.5})");
  istek(R"({"eylem":"durum","istek":true})");
  istek(R"({"eylem":"durum","istek":18446744073709551615})");
  ASSERT_EQ(d.betikler.size(), 5u);
  for (const auto& b : d.betikler) {
    EXPECT_EQ(b.rfind("window.nevoMasaustuCevap && window.nevoMasaustuCevap(0, '", 0), 0u) << b;
  }
  istek(R"({"eylem":"durum","istek":-12})");
  EXPECT_EQ(
      d.betikler.back().rfind("window.nevoMasaustuCevap && window.nevoMasaustuCevap(-12, '", 0),
      0u);
}

TEST_F(MasaustuTesti, PencereYokkenKisayolKaydetHemenCevaplanirKaydediciAcilmaz) {
  istek(R"({"istek":4,"eylem":"kisayol-kaydet"})");
  d.yol->pencere = nullptr;
  istek(R"({"istek":5,"eylem":"kisayol-kaydet"})");
  ASSERT_EQ(d.betikler.size(), 2u);
  EXPECT_NE(d.betikler[0].find("nevoMasaustuCevap(4, '"), std::string::npos);
  EXPECT_NE(d.betikler[1].find("nevoMasaustuCevap(5, '"), std::string::npos);
  EXPECT_EQ(d.levha.acmalar, 0);
}

TEST_F(MasaustuTesti, KisayolKaydetCevabiKaydediciKapaninacaBekler) {
  sahte::PencereSahte pencere;
  d.yol->pencere = &pencere;
  istek(R"({"istek":9,"eylem":"kisayol-kaydet"})");
  EXPECT_EQ(d.levha.ustunde, &pencere);
  EXPECT_TRUE(d.betikler.empty());
  d.tercih.kisayolKod(49);
  d.tercih.kisayolAd("Ctrl+Space");
  d.levha.olaylar.vazgecildi();
  ASSERT_EQ(d.betikler.size(), 1u);
  EXPECT_NE(d.betikler[0].find("nevoMasaustuCevap(9, '"), std::string::npos);
  EXPECT_EQ(sonDurum()["kisayol"], "Ctrl+Space");
}

TEST_F(MasaustuTesti, BilinmeyenEylemBetikUretmez) {
  istek(R"({"istek":1,"eylem":"Durum"})");
  istek(R"({"istek":1})");
  istek(R"({"istek":1,"eylem":7})");
  istek(R"({"istek":1,"eylem":""})");
  EXPECT_TRUE(d.betikler.empty());
}

TEST_F(MasaustuTesti, AyniIsAcilipKapaninacaKumeBosalir) {
  d.masaustu->isMesaji(json::parse(R"({"is":"a","acik":true})"));
  EXPECT_EQ(d.masaustu->uyku().isSayisi(), 1u);
  d.masaustu->isMesaji(json::parse(R"({"is":"a","acik":false})"));
  EXPECT_EQ(d.masaustu->uyku().isSayisi(), 0u);
}

TEST_F(MasaustuTesti, AcikMetinTrueIseBitisSayilir) {
  d.masaustu->isMesaji(json::parse(R"({"is":"a","acik":true})"));
  d.masaustu->isMesaji(json::parse(R"({"is":"a","acik":"true"})"));
  EXPECT_EQ(d.masaustu->uyku().isSayisi(), 0u);
  d.masaustu->isMesaji(json::parse(R"({"is":"b","acik":1})"));
  EXPECT_EQ(d.masaustu->uyku().isSayisi(), 0u);
}

TEST_F(MasaustuTesti, IsKimligiMetinDegilseHicbirSeyOlmaz) {
  d.masaustu->isMesaji(json::parse(R"({"is":5,"acik":true})"));
  d.masaustu->isMesaji(json::parse(R"({"acik":true})"));
  EXPECT_EQ(d.masaustu->uyku().isSayisi(), 0u);
}

TEST_F(MasaustuTesti, KisayolYoksaNullAdsizsaBosMetin) {
  EXPECT_TRUE(json::parse(d.masaustu->durumJSON())["kisayol"].is_null());
  d.tercih.kisayolKod(49);
  EXPECT_EQ(json::parse(d.masaustu->durumJSON())["kisayol"], "");
  d.tercih.kisayolKod(-1);
  d.tercih.kisayolAd("Ctrl+Space");
  EXPECT_TRUE(json::parse(d.masaustu->durumJSON())["kisayol"].is_null());
}

// A stored value the program would not register is no shortcut for the page either.
TEST_F(MasaustuTesti, AralikDisindakiKayitliKisayolDurumdaYokSayilir) {
  d.tercih.kisayolAd("Bozuk");
  for (const auto& [kod, mod] :
       {std::pair<std::int64_t, std::int64_t>{4294967336, 6144}, {40, 4294973440}, {40, -1}}) {
    d.tercih.kisayolKod(kod);
    d.tercih.kisayolMod(mod);
    EXPECT_TRUE(json::parse(d.masaustu->durumJSON())["kisayol"].is_null()) << kod << " " << mod;
  }
  d.tercih.kisayolKod(4294967295);
  d.tercih.kisayolMod(4294967295);
  EXPECT_EQ(json::parse(d.masaustu->durumJSON())["kisayol"], "Bozuk");
}

// "macOS 12 or earlier" is a login-item service the system does not offer.
TEST_F(MasaustuTesti, SistemDesteklemiyorsaBaslangicAlanlariKapali) {
  d.sistem.kimlik = "app.nevo.Nevo";
  d.girisOgesi.destekler = false;
  d.girisOgesi.suanki = GirisOgesiDurumu::onayBekliyor;
  const auto durum = json::parse(d.masaustu->durumJSON());
  EXPECT_EQ(durum["baslangic"], false);
  EXPECT_EQ(durum["baslangicDestekli"], false);
  EXPECT_TRUE(durum["baslangicHata"].is_null());
}

TEST_F(MasaustuTesti, DurumNesnesiAltiUyeliDir) {
  d.sistem.kimlik = "app.nevo.Nevo";
  d.girisOgesi.suanki = GirisOgesiDurumu::onayBekliyor;
  d.tercih.menuCubugu(true);
  const auto durum = json::parse(d.masaustu->durumJSON());
  EXPECT_EQ(durum, json::parse(R"({"baslangic":false,"baslangicDestekli":true,
    "baslangicHata":"macOS onay bekliyor: Sistem Ayarları › Genel › )"
                               R"(Giriş Öğeleri'nden Nevo'ye izin ver.",
    "kisayol":null,"menuCubugu":true,"uyanikTut":false})"));
}

TEST_F(MasaustuTesti, DurumNesnesiSikiYazilir) {
  const auto metin = d.masaustu->durumJSON();
  EXPECT_EQ(metin.find_first_of(" \n"), std::string::npos) << metin;
}

TEST_F(MasaustuTesti, SerilestirilemeyenDurumKumeParantezidir) {
  d.tercih.kisayolKod(1);
  d.tercih.kisayolAd("\xff\xfe");
  EXPECT_EQ(d.masaustu->durumJSON(), "{}");
}

TEST_F(MasaustuTesti, AyarEylemleriDegeriYazarVeCevaplar) {
  istek(R"({"istek":1,"eylem":"menu-cubugu","deger":true})");
  EXPECT_TRUE(d.tercih.menuCubugu());
  EXPECT_TRUE(d.durumOgesi.gorunur);
  EXPECT_EQ(sonDurum()["menuCubugu"], true);
  istek(R"({"istek":2,"eylem":"menu-cubugu","deger":"false"})");  // not a boolean: false
  EXPECT_FALSE(d.tercih.menuCubugu());
  EXPECT_FALSE(d.durumOgesi.gorunur);
  EXPECT_EQ(sonDurum()["menuCubugu"], false);
  d.masaustu->isMesaji(json::parse(R"({"is":"is","acik":true})"));
  istek(R"({"istek":3,"eylem":"uyanik","deger":true})");
  EXPECT_TRUE(d.masaustu->uyku().aktif());
  EXPECT_EQ(sonDurum()["uyanikTut"], true);
  d.tercih.kisayolKod(49);
  d.tercih.kisayolAd("Ctrl+Space");
  istek(R"({"istek":4,"eylem":"kisayol-sil"})");
  EXPECT_EQ(d.tercih.kisayolKod(), -1);
  EXPECT_TRUE(sonDurum()["kisayol"].is_null());
  EXPECT_EQ(d.betikler.size(), 4u);
}

TEST_F(MasaustuTesti, BaslangicSonucuCevabaDurumOlarakYansir) {
  d.sistem.kimlik = "app.nevo.Nevo";
  istek(R"({"istek":1,"eylem":"baslangic","deger":true})");
  EXPECT_EQ(d.girisOgesi.kayitlar, 1);
  EXPECT_EQ(sonDurum()["baslangic"], true);
  d.girisOgesi.hata = "izin yok";
  istek(R"({"istek":2,"eylem":"baslangic","deger":false})");
  EXPECT_EQ(sonDurum()["baslangic"], true);  // the error surfaces only as the unchanged state
  EXPECT_TRUE(sonDurum()["baslangicHata"].is_null());
}

TEST_F(MasaustuTesti, KurTetikleyiciyiBaglarMenuCubugunuUygular) {
  d.tercih.menuCubugu(true);
  d.masaustu->kur();
  EXPECT_EQ(d.sicakTus.isleyiciKurmalari, 1);
  EXPECT_EQ(d.durumOgesi.gostermeler, 1);
  ASSERT_TRUE(d.sicakTus.basildi);
  const auto bas = [&] {
    d.sicakTus.bas();
    d.kuyruk.calistir();
  };
  bas();
  EXPECT_TRUE(d.hizliGorunum.acik);
  bas();
  EXPECT_FALSE(d.hizliGorunum.acik);
  bas();
  EXPECT_EQ(d.hizliGorunum.gostermeler, 2);
  EXPECT_TRUE(d.betikler.empty());
  EXPECT_TRUE(d.kilit.nedenler.empty());  // the sleep blocker is not touched at launch
}

TEST_F(MasaustuTesti, KopruGidinceTetikleyiciHicbirSeyYapmaz) {
  d.masaustu->kur();
  d.masaustu.reset();
  d.sicakTus.bas();
  d.kuyruk.calistir();
  EXPECT_FALSE(d.hizliGorunum.acik);
}

TEST_F(MasaustuTesti, KapanirkenKisayoluBirakirUykuyuSalar) {
  d.tercih.uyanikTut(true);
  d.tercih.kisayolKod(49);
  d.kisayol.tak(49, 256);
  ASSERT_TRUE(d.kisayol.kayitli());
  d.masaustu->isMesaji(json::parse(R"({"is":"a","acik":true})"));
  d.masaustu->isMesaji(json::parse(R"({"is":"b","acik":true})"));
  d.masaustu->kapanirken();
  EXPECT_EQ(d.sicakTus.kaldirmalar, 1);
  EXPECT_FALSE(d.sicakTus.kayitli);
  EXPECT_EQ(d.tercih.kisayolKod(), 49);
  EXPECT_FALSE(d.masaustu->uyku().aktif());
  EXPECT_EQ(d.masaustu->uyku().isSayisi(), 0u);
  EXPECT_EQ(d.kilit.birakilanlar.size(), 1u);
}

TEST_F(MasaustuTesti, KomutVeHizliMesajKorunmusCagridir) {
  d.masaustu->komut("yeni-sohbet");
  d.masaustu->hizliMesaj("O'nun\nsorusu \\ ");
  EXPECT_EQ(d.betikler,
            (std::vector<std::string>{
                "window.nevoKomut && window.nevoKomut('yeni-sohbet')",
                "window.nevoHizliMesaj && window.nevoHizliMesaj('O\\'nun\\nsorusu \\\\ ')"}));
}

TEST(Masaustu, SayfayaGonderYokkenCevapKaybolur) {
  sahte::MasaustuDuzenegi d;
  d.masaustu->mesaj(json::parse(R"({"istek":1,"eylem":"durum"})"));
  d.masaustu->komut("ayarlar");
  d.masaustu->hizliMesaj("x");
  EXPECT_TRUE(d.betikler.empty());
}

TEST(Masaustu, DurumNesnesiHerDepoyuBirKezOkur) {
  sahte::MasaustuDuzenegi d;
  d.sistem.kimlik = "app.nevo.Nevo";
  d.masaustu->durumJSON();
  EXPECT_EQ(d.sistem.kimlikOkumalari, 1);
  EXPECT_EQ(d.girisOgesi.durumOkumalari, 1);
  EXPECT_EQ(*d.depo.anliklar, 1);
  EXPECT_EQ(*d.depo.okumalar, 0);
  d.masaustu->durumJSON();  // never cached across replies
  EXPECT_EQ(*d.depo.anliklar, 2);
}

}  // namespace
}  // namespace nevo
