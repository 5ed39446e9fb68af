// The shortcut recorder.
#include "desktop/kisayol/kisayol_kaydedici.hpp"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "fakes/sahte_kisayol.hpp"
#include "fakes/sahte_kuyruk.hpp"
#include "fakes/sahte_masaustu.hpp"
#include "fakes/sahte_pencere.hpp"

namespace nevo {
namespace {

constexpr auto CTRL_ALT = bayrak::CONTROL | bayrak::OPTION;

struct KaydediciTesti : ::testing::Test {
  KaydediciTesti() {
    tercih.kisayolKod(40);
    tercih.kisayolMod(6144);
    tercih.kisayolAd("Ctrl+Alt+K");
    kisayol.kur();
  }
  void ac() {
    kaydedici.ac(pencere, [this] { ++bitmeler; });
  }
  void bas(std::int64_t kod, std::uint64_t bayraklar, std::optional<std::string> k = "j") {
    levha.olaylar.basildi({kod, bayraklar, std::move(k)});
  }
  sahte::TercihDeposuSahte depo;
  Tercih tercih{depo};
  sahte::Kuyruk kuyruk;
  sahte::SicakTusSahte tus;
  Kisayol kisayol{tus, tercih, kuyruk};
  sahte::KisayolLevhasiSahte levha;
  sahte::PencereSahte pencere;
  SistemKisayollari sistem;
  KisayolKaydedici kaydedici{
      {levha, kisayol, tercih, linuxKisayolMetinleri(), [this] { return sistem; }}};
  int bitmeler = 0;
};

TEST_F(KaydediciTesti, AnaPencereninUstundeAcilir) {
  ac();
  EXPECT_TRUE(levha.acik);
  EXPECT_EQ(levha.ustunde, &pencere);
  EXPECT_EQ(levha.metinler->baslik, "Kısayol");
  EXPECT_EQ(levha.metinler->ustYazi, "Kısayolu şnevo tuşla");
  EXPECT_EQ(levha.metinler->vazgec, "Vazgeç");
  EXPECT_EQ(levha.uyari, "");
}

TEST_F(KaydediciTesti, KisayolKaydedilirVeTercihlereYazilir) {
  ac();
  bas(38, CTRL_ALT);
  EXPECT_FALSE(levha.acik);
  EXPECT_EQ(bitmeler, 1);
  EXPECT_TRUE(kaydedici.sonSonuc());
  EXPECT_EQ(*tus.kayitli, (sahte::SicakTusSahte::Kayit{38, 6144}));
  EXPECT_EQ(tercih.kisayolKod(), 38);
  EXPECT_EQ(tercih.kisayolMod(), 6144);
  EXPECT_EQ(tercih.kisayolAd(), "Ctrl+Alt+J");
}

TEST_F(KaydediciTesti, EscapeDenetimTuslariylaBileVazgecer) {
  ac();
  bas(ESCAPE_KODU, bayrak::CONTROL, "\x1b");
  EXPECT_FALSE(levha.acik);
  EXPECT_EQ(bitmeler, 1);
  EXPECT_FALSE(kaydedici.sonSonuc());
  EXPECT_EQ(tercih.kisayolKod(), 40);
  EXPECT_EQ(*tus.kayitli, (sahte::SicakTusSahte::Kayit{40, 6144}));
}

TEST_F(KaydediciTesti, YalnizCommandUyarirVeAcikKalir) {
  ac();
  bas(38, bayrak::COMMAND);
  EXPECT_TRUE(levha.acik);
  EXPECT_EQ(levha.uyari,
            "Yalnız Super ile kurulan bir kısayol, bütün uygulamalarda o tuşu çalar. Alt ya da "
            "Ctrl ekle.");
  EXPECT_EQ(bitmeler, 0);
}

TEST_F(KaydediciTesti, KaraktersizBasmaYokSayilir) {
  ac();
  bas(38, CTRL_ALT, "");
  bas(38, CTRL_ALT, std::nullopt);
  EXPECT_TRUE(levha.acik);
  EXPECT_EQ(levha.uyari, "");
  EXPECT_EQ(tus.denemeler.size(), 1u);  // the stored one, at start
}

TEST_F(KaydediciTesti, SistemKisayoluUyarilir) {
  sistem = nlohmann::json{{"1", {{"value", {{"parameters", {0, 38, CTRL_ALT}}}}}}};
  ac();
  bas(38, CTRL_ALT);
  EXPECT_TRUE(levha.acik);
  EXPECT_EQ(levha.uyari, "Bu kısayolu sistem kullanıyor. Başka bir kombinasyon dene.");
}

TEST_F(KaydediciTesti, BaskasindakiKombinasyonEskiKisayoluKorur) {
  tus.baskasinda.push_back({38, 6144});
  ac();
  bas(38, CTRL_ALT);
  EXPECT_TRUE(levha.acik);
  EXPECT_EQ(levha.uyari, "Bu kısayol başka bir uygulamada kayıtlı. Başka bir kombinasyon dene.");
  ASSERT_TRUE(tus.kayitli);
  EXPECT_EQ(*tus.kayitli, (sahte::SicakTusSahte::Kayit{40, 6144}));
  EXPECT_EQ(tercih.kisayolKod(), 40);
  EXPECT_EQ(tercih.kisayolMod(), 6144);
  EXPECT_EQ(tercih.kisayolAd(), "Ctrl+Alt+K");
  EXPECT_EQ(bitmeler, 0);
}

TEST_F(KaydediciTesti, KayitliKisayolYokkenReddedilenHicbirSeyTakmaz) {
  kisayol.sil();
  tus.baskasinda.push_back({38, 6144});
  ac();
  bas(38, CTRL_ALT);
  EXPECT_FALSE(tus.kayitli);
  EXPECT_EQ(tercih.kisayolKod(), -1);
}

TEST_F(KaydediciTesti, HerYoldanKapanisBitinceyiBirKezCagirir) {
  ac();
  levha.olaylar.vazgecildi();
  levha.olaylar.vazgecildi();
  bas(ESCAPE_KODU, 0, "\x1b");
  EXPECT_EQ(bitmeler, 1);
  EXPECT_EQ(levha.kapatmalar, 1);

  ac();
  bas(38, CTRL_ALT);
  bas(ESCAPE_KODU, 0, "\x1b");
  EXPECT_EQ(bitmeler, 2);
}

TEST_F(KaydediciTesti, YenidenAcmakEskiBitinceyiCagirmadanDegistirir) {
  int eski = 0;
  kaydedici.ac(pencere, [&] { ++eski; });
  ac();
  bas(ESCAPE_KODU, 0, "\x1b");
  EXPECT_EQ(eski, 0);
  EXPECT_EQ(bitmeler, 1);
}

// Where the desktop answers over its bus, the verdict comes later.
TEST_F(KaydediciTesti, GecikenKararGelenekadarAcikKalirIkinciIstekGitmez) {
  tus.sonraYanitla = true;
  ac();
  bas(38, CTRL_ALT);
  EXPECT_TRUE(kaydedici.bekliyor());
  EXPECT_TRUE(levha.acik);
  EXPECT_EQ(bitmeler, 0);
  EXPECT_EQ(tercih.kisayolKod(), 40);
  bas(37, CTRL_ALT);  // a second combination while the first waits: nothing is asked
  EXPECT_EQ(tus.denemeler.back(), (sahte::SicakTusSahte::Kayit{38, 6144}));
  const auto denemeler = tus.denemeler.size();
  tus.yanitla();
  EXPECT_EQ(tus.denemeler.size(), denemeler);
  EXPECT_FALSE(kaydedici.bekliyor());
  EXPECT_FALSE(levha.acik);
  EXPECT_EQ(bitmeler, 1);
  EXPECT_TRUE(kaydedici.sonSonuc());
  EXPECT_EQ(tercih.kisayolKod(), 38);
  EXPECT_EQ(tercih.kisayolAd(), "Ctrl+Alt+J");
}

TEST_F(KaydediciTesti, GecikenRetUyarirVeKayitliKisayoluGeriTakar) {
  tus.sonraYanitla = true;
  tus.baskasinda.push_back({38, 6144});
  ac();
  bas(38, CTRL_ALT);
  EXPECT_EQ(levha.uyari, "");
  tus.yanitla();
  EXPECT_TRUE(levha.acik);
  EXPECT_EQ(levha.uyari, "Bu kısayol başka bir uygulamada kayıtlı. Başka bir kombinasyon dene.");
  EXPECT_EQ(tus.denemeler.back(), (sahte::SicakTusSahte::Kayit{40, 6144}));
  tus.yanitla();
  EXPECT_EQ(*tus.kayitli, (sahte::SicakTusSahte::Kayit{40, 6144}));
  EXPECT_EQ(tercih.kisayolKod(), 40);
  // The next combination is asked for again.
  tus.baskasinda.clear();
  bas(37, CTRL_ALT);
  tus.yanitla();
  EXPECT_EQ(tercih.kisayolKod(), 37);
  EXPECT_EQ(bitmeler, 1);
}

TEST_F(KaydediciTesti, BeklerkenKapanmakIstegiGeriCekerKayitliyiGeriTakar) {
  tus.sonraYanitla = true;
  ac();
  bas(38, CTRL_ALT);
  auto gec = tus.bekleyen;  // the desktop's answer, should it still come
  bas(ESCAPE_KODU, bayrak::CONTROL, "\x1b");
  EXPECT_FALSE(levha.acik);
  EXPECT_EQ(bitmeler, 1);
  EXPECT_FALSE(kaydedici.sonSonuc());
  EXPECT_EQ(tus.denemeler.back(), (sahte::SicakTusSahte::Kayit{40, 6144}));
  gec();
  EXPECT_EQ(tercih.kisayolKod(), 40);
  EXPECT_EQ(bitmeler, 1);
  tus.yanitla();
  EXPECT_EQ(*tus.kayitli, (sahte::SicakTusSahte::Kayit{40, 6144}));
  EXPECT_TRUE(kisayol.kayitli());
}

TEST_F(KaydediciTesti, GenelKisayolYoksaSoylerVeKaydetmez) {
  tus.destekler = false;
  ac();
  EXPECT_EQ(levha.uyari, "Bu masaüstü genel kısayolları desteklemiyor.");
  levha.uyari.clear();
  bas(38, CTRL_ALT);
  EXPECT_EQ(levha.uyari, "Bu masaüstü genel kısayolları desteklemiyor.");
  EXPECT_TRUE(levha.acik);
  EXPECT_EQ(tercih.kisayolKod(), 40);
}

}  // namespace
}  // namespace nevo
