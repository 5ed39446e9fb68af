// The menu-bar item.
#include "desktop/menu_cubugu.hpp"

#include <gtest/gtest.h>

#include "fakes/sahte_kisayol.hpp"

namespace nevo {
namespace {

struct MenuCubuguTesti : ::testing::Test {
  sahte::DurumOgesiSahte oge;
  MenuCubugu menu{oge};
};

TEST_F(MenuCubuguTesti, IkiKezGostermekTekOgeYapar) {
  menu.uygula(true);
  menu.uygula(true);
  EXPECT_EQ(oge.gostermeler, 1);
  EXPECT_TRUE(menu.gosteriliyor());
}

TEST_F(MenuCubuguTesti, GizlikenKaldirmakHicbirSeyYapmaz) {
  menu.uygula(false);
  EXPECT_EQ(oge.kaldirmalar, 0);
  menu.uygula(true);
  menu.uygula(false);
  menu.uygula(false);
  EXPECT_EQ(oge.kaldirmalar, 1);
  menu.uygula(true);
  EXPECT_EQ(oge.gostermeler, 2);  // rebuilt when shown again
}

TEST_F(MenuCubuguTesti, YediGirdiSirasiylaKimlikleriyle) {
  menu.uygula(true);
  EXPECT_EQ(oge.tasarim.girdiler, (std::vector<MenuCubuguGirdisi>{
                                      {"Nevo'yi Aç", "ac"},
                                      {"Yeni sohbet", "yeni-sohbet"},
                                      {"Nevo Code görevleri", "nevo-code"},
                                      {"", ""},
                                      {"Ayarlar", "ayarlar"},
                                      {"", ""},
                                      {"Nevo'den Çık", "cik"},
                                  }));
}

TEST_F(MenuCubuguTesti, SimgesizOgeBasHarfiVeIpucunuTasir) {
  menu.uygula(true);
  EXPECT_EQ(oge.tasarim.basHarf, "N");
  EXPECT_EQ(oge.tasarim.ipucu, "Nevo");
}

TEST_F(MenuCubuguTesti, SecilenGirdiEylemeKimliginiVerir) {
  std::vector<std::string> secilenler;
  menu.eylemAyarla([&](const std::string& k) { secilenler.push_back(k); });
  menu.uygula(true);
  oge.secildi("nevo-code");
  EXPECT_EQ(secilenler, (std::vector<std::string>{"nevo-code"}));
}

TEST_F(MenuCubuguTesti, EylemTemizlendiktenSonraSecimHicbirSeyYapmaz) {
  int sayi = 0;
  menu.eylemAyarla([&](const std::string&) { ++sayi; });
  menu.uygula(true);
  menu.eylemAyarla(nullptr);
  oge.secildi("ac");
  EXPECT_EQ(sayi, 0);
}

}  // namespace
}  // namespace nevo
