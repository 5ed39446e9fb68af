// Loading curtain and render check.
#include <gtest/gtest.h>

#include "app/uygulama.hpp"
#include "core/js_motoru.hpp"
#include "fakes/uygulama_duzenegi.hpp"

namespace nevo {
namespace {

using sahte::UygulamaDuzenegi;

std::string sinamaSonucu(const std::string& belge) {
  return test::jsDegerlendir("var document=" + belge + ";" + Uygulama::CIZIM_SINAMASI);
}

struct PerdeTesti : ::testing::Test {
  PerdeTesti() { d.ac(); }
  UygulamaDuzenegi d;
};

TEST(CizimSinamasi, YalnizBoslukOlanGovdeCizilmemisSayilir) {
  EXPECT_EQ(sinamaSonucu("{body:{innerText:' \\n\\t\\u00a0 '}}"), "false");
  EXPECT_EQ(sinamaSonucu("{body:{innerText:' Merhaba '}}"), "true");
}

TEST(CizimSinamasi, GovdesizBelgeBoolOlmayanCevapVerir) {
  EXPECT_EQ(sinamaSonucu("{body:null}"), "null");
}

TEST_F(PerdeTesti, BoolOlmayanCevapYenidenDener) {
  d.uygulama->yuklemeBitti();
  ASSERT_EQ(d.web().sorular.size(), 1u);
  EXPECT_EQ(d.web().sorular[0].first, Uygulama::CIZIM_SINAMASI);
  d.web().cevapla(std::nullopt);
  EXPECT_EQ(d.kuyruk.ilerle(0.099), 0);
  EXPECT_EQ(d.kuyruk.ilerle(0.001), 1);
  EXPECT_EQ(d.web().sorular.size(), 1u);
  EXPECT_TRUE(d.perde().sondurmeler.empty());
}

TEST_F(PerdeTesti, DogruCevaptanSonraSayfaBirKareCizinceSondurupKaldirir) {
  d.uygulama->yuklemeBitti();
  d.web().cevapla(true);
  EXPECT_TRUE(d.perde().sondurmeler.empty());  // text in the document is not yet on screen
  EXPECT_TRUE(d.web().sorular.empty());        // the probe stops at its first true answer
  ASSERT_EQ(d.web().beklemeler.size(), 1u);
  EXPECT_EQ(d.web().beklemeler[0].first, Uygulama::KARE_BEKLEMESI);
  d.web().beklemeyiBitir(true);
  EXPECT_EQ(d.perde().sondurmeler, (std::vector<double>{0.28}));
  EXPECT_EQ(d.perde().kaldirmalar, 0);
  d.perde().sondurmeyiBitir();
  EXPECT_EQ(d.perde().kaldirmalar, 1);
  EXPECT_FALSE(d.perde().bagli());  // the object is kept (a freed one would fail here)
  d.kuyruk.ilerle(60);              // the latest time for the fade changes nothing now
  EXPECT_EQ(d.perde().sondurmeler.size(), 1u);
}

TEST_F(PerdeTesti, YazimDenetimiPerdeKalkincaBirKezIstenir) {
  EXPECT_TRUE(d.pencere().gorunurMu);
  d.uygulama->yuklemeBitti();
  d.web().cevapla(true);
  d.web().beklemeyiBitir(true);
  EXPECT_EQ(d.web().yazimBaslatmalari, 0);  // the curtain is still fading
  d.perde().sondurmeyiBitir();
  EXPECT_EQ(d.web().yazimBaslatmalari, 1);
  // A page whose process ended comes back under the curtain, which goes again.
  d.uygulama->webSureciBitti();
  d.uygulama->yuklemeBitti();
  d.web().cevapla(true);
  d.web().beklemeyiBitir(true);
  d.perde().sondurmeyiBitir();
  d.kuyruk.ilerle(60);
  EXPECT_EQ(d.perde().sondurmeler.size(), 2u);
  EXPECT_EQ(d.web().yazimBaslatmalari, 1);
}

// `kareler` frames of the page run; the object shows the frames asked for along the way
// and what the promise settled to.
std::string kareBeklemesi(int kareler) {
  std::string betik =
      "var kareler=[],d={istenen:[]};"
      "function requestAnimationFrame(f){kareler.push(f);}"
      "(async function(){" +
      std::string(Uygulama::KARE_BEKLEMESI) + "})().then(function(v){d.sonuc=v;});";
  for (int i = 0; i < kareler; ++i) betik += "d.istenen.push(kareler.length);kareler.shift()();";
  return test::jsDegerlendir(betik + "d");
}

TEST(KareBeklemesi, IkinciKareyeKadarBekleyipDogruIleSonuclanir) {
  EXPECT_EQ(kareBeklemesi(1), "{\"istenen\":[1]}");
  EXPECT_EQ(kareBeklemesi(2), "{\"istenen\":[1,1],\"sonuc\":true}");
}

TEST_F(PerdeTesti, KareCizilemeyenSayfaSinamalarinBitecegiAndaAcilir) {
  d.uygulama->yuklemeBitti();
  for (int i = 0; i < 10; ++i) {
    d.web().cevapla(false);
    d.kuyruk.ilerle(0.1);
  }
  d.web().cevapla(true);  // the 11th probe: 140 probes' time remains
  ASSERT_EQ(d.web().beklemeler.size(), 1u);
  d.kuyruk.ilerle(13.99);
  EXPECT_TRUE(d.perde().sondurmeler.empty());
  d.kuyruk.ilerle(0.02);
  EXPECT_EQ(d.perde().sondurmeler.size(), 1u);
  d.web().beklemeyiBitir(true);  // a late frame fades nothing twice
  EXPECT_EQ(d.perde().sondurmeler.size(), 1u);
}

TEST_F(PerdeTesti, KareBeklemesiHataVerinceDeAcilir) {
  d.uygulama->yuklemeBitti();
  d.web().cevapla(true);
  d.web().beklemeyiBitir(std::nullopt);
  EXPECT_EQ(d.perde().sondurmeler.size(), 1u);
}

TEST_F(PerdeTesti, Deneme150SinamadanHemenKaldirir) {
  d.uygulama->cizildiMi(150);
  EXPECT_TRUE(d.web().sorular.empty());
  EXPECT_EQ(d.perde().sondurmeler.size(), 1u);
}

TEST_F(PerdeTesti, HicMetinGostermeyenSayfa150SinamadaPerdesiniKaybeder) {
  d.uygulama->yuklemeBitti();
  int sinamalar = 0;
  while (!d.web().sorular.empty()) {
    ++sinamalar;
    d.web().cevapla(false);
    EXPECT_TRUE(d.perde().sondurmeler.empty());
    d.kuyruk.ilerle(0.1);
  }
  EXPECT_EQ(sinamalar, 150);
  EXPECT_EQ(d.perde().sondurmeler.size(), 1u);
}

TEST_F(PerdeTesti, IkiKezKaldirmakBirKezSondurur) {
  d.uygulama->perdeyiKaldir();
  d.uygulama->perdeyiKaldir();
  EXPECT_EQ(d.perde().sondurmeler.size(), 1u);
  d.perde().sondurmeyiBitir();
  d.uygulama->perdeyiKaldir();
  d.uygulama->cizildiMi(150);
  EXPECT_EQ(d.perde().sondurmeler.size(), 1u);
  EXPECT_EQ(d.perde().kaldirmalar, 1);
}

TEST_F(PerdeTesti, YanYanaZincirlerBirKezKaldirir) {
  d.uygulama->yuklemeBitti();
  d.uygulama->yuklemeBitti();
  d.web().cevapla(true);
  d.web().cevapla(true);
  d.web().beklemeyiBitir(true);
  d.web().beklemeyiBitir(true);
  d.perde().sondurmeyiBitir();
  EXPECT_EQ(d.perde().sondurmeler.size(), 1u);
  EXPECT_EQ(d.perde().kaldirmalar, 1);
}

TEST_F(PerdeTesti, PerdeEnOndeVeSeridinUstunde) {
  const auto& k = d.kurucu.tasarim.katmanlar;
  EXPECT_EQ(k, (std::vector<Katman>{Katman::Arka, Katman::Web, Katman::Serit, Katman::Perde}));
}

TEST(Perde, UygulamaGidinceCevapHicbirSeyYapmaz) {
  auto d = std::make_unique<UygulamaDuzenegi>();
  d->ac();
  d->uygulama->yuklemeBitti();
  auto cevap = std::move(d->web().sorular[0].second);
  auto& kuyruk = d->kuyruk;
  d->uygulama.reset();  // the fakes stay; only the delegate is gone
  cevap(false);
  EXPECT_EQ(kuyruk.bekleyen(), 0u);
}

}  // namespace
}  // namespace nevo
