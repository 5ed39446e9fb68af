// The context menu: which entries for what lies under the pointer.
#include "app/pencere/baglam_menusu.hpp"

#include <gtest/gtest.h>

#include "fakes/uygulama_duzenegi.hpp"

namespace nevo {
namespace {

std::vector<std::string> satirlar(const Isabet& isabet) {
  std::vector<std::string> sonuc;
  for (const auto& o : baglamMenusu(isabet, anaMenu(linuxMetinleri()))) {
    if (o.eylem == BaglamEylemi::Ayrac) {
      sonuc.push_back("---");
    } else if (o.eylem == BaglamEylemi::YazimOnerileri) {
      sonuc.push_back("(öneriler)");
    } else {
      sonuc.push_back(o.baslik + (o.tus.empty() ? "" : "|" + o.tus));
    }
  }
  return sonuc;
}

using Satirlar = std::vector<std::string>;

TEST(BaglamMenusu, MetinAlaniDuzenlemeKomutlariniMenudekiTuslarlaVerir) {
  EXPECT_EQ(
      satirlar({.duzenlenebilir = true}),
      (Satirlar{"Geri Al|z", "Yinele|Z", "Kes|x", "Kopyala|c", "Yapıştır|v", "Tümünü Seç|a"}));
}

TEST(BaglamMenusu, YazimOnerileriEnUsttedirVeAyrilir) {
  EXPECT_EQ(satirlar({.duzenlenebilir = true, .oneriVar = true}),
            (Satirlar{"(öneriler)", "---", "Geri Al|z", "Yinele|Z", "Kes|x", "Kopyala|c",
                      "Yapıştır|v", "Tümünü Seç|a"}));
}

TEST(BaglamMenusu, OnerilerYalnizcaMetinAlanindaVerilir) {
  EXPECT_EQ(satirlar({.secim = true, .oneriVar = true}), (Satirlar{"Kopyala|c"}));
}

TEST(BaglamMenusu, SeciliMetinYalnizcaKopyalanir) {
  EXPECT_EQ(satirlar({.secim = true}), (Satirlar{"Kopyala|c"}));
}

TEST(BaglamMenusu, WebBaglantisiTarayicidaAcilirVeAdresiKopyalanir) {
  EXPECT_EQ(satirlar({.baglanti = "https://ornek.com/"}),
            (Satirlar{"Bağlantıyı Tarayıcıda Aç", "Bağlantı Adresini Kopyala"}));
  EXPECT_EQ(satirlar({.baglanti = "mailto:biri@ornek.com"}),
            (Satirlar{"Bağlantıyı Tarayıcıda Aç", "Bağlantı Adresini Kopyala"}));
}

TEST(BaglamMenusu, WebVePostaDisindakiBaglantiDisariAcilmaz) {
  EXPECT_EQ(satirlar({.baglanti = "file:///etc/passwd"}), (Satirlar{"Bağlantı Adresini Kopyala"}));
  EXPECT_EQ(satirlar({.baglanti = "javascript:void(0)"}), (Satirlar{"Bağlantı Adresini Kopyala"}));
}

TEST(BaglamMenusu, ResimKopyalanirVeKaydedilir) {
  EXPECT_EQ(satirlar({.resim = "https://ornek.com/a.png"}),
            (Satirlar{"Resmi Kopyala", "Resmi Kaydet…"}));
}

TEST(BaglamMenusu, BaglantiliResimdeGruplarAyrilir) {
  EXPECT_EQ(satirlar({.secim = true, .baglanti = "https://ornek.com/", .resim = "https://a/b.png"}),
            (Satirlar{"Kopyala|c", "---", "Bağlantıyı Tarayıcıda Aç", "Bağlantı Adresini Kopyala",
                      "---", "Resmi Kopyala", "Resmi Kaydet…"}));
}

TEST(BaglamMenusu, BosYerdeMenuAcilmaz) { EXPECT_TRUE(satirlar({}).empty()); }

TEST(BaglamMenusu, OlayiIptalEdenSayfayaMenuAcilmaz) {
  EXPECT_TRUE(
      satirlar({.duzenlenebilir = true, .sayfaIstemedi = true, .baglanti = "https://ornek.com/"})
          .empty());
}

TEST(BaglamMenusu, GeriAlVeYineleDuzenlemeKomutunuTasir) {
  const auto menu = baglamMenusu({.duzenlenebilir = true}, anaMenu(linuxMetinleri()));
  EXPECT_EQ(menu[0].duzenlemeKomutu, "Undo");
  EXPECT_EQ(menu[1].duzenlemeKomutu, "Redo");
}

TEST(BaglamMenusu, UygulamaPlatformunMenuTuslariylaKurar) {
  sahte::UygulamaDuzenegi d("https://app.nevo.ai/", macMetinleri());
  d.ac();
  const auto menu = d.uygulama->baglamMenusu({.secim = true});
  ASSERT_EQ(menu.size(), 1u);
  EXPECT_EQ(menu[0].baslik, "Kopyala");
  EXPECT_EQ(menu[0].tus, "c");
}

}  // namespace
}  // namespace nevo
