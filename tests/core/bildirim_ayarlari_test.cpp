// Which program opens the notification settings on each desktop.
#include "bridge/bildirim_ayarlari.hpp"

#include <gtest/gtest.h>

namespace nevo {
namespace {

using Komutlar = std::vector<std::vector<std::string>>;

TEST(BildirimAyarlari, HerMasaustuKendiBildirimSayfasiniSonraGenelAyarlariniAcar) {
  EXPECT_EQ(bildirimAyarlariKomutlari("GNOME"),
            (Komutlar{{"gnome-control-center", "notifications"}, {"gnome-control-center"}}));
  EXPECT_EQ(bildirimAyarlariKomutlari("XFCE"),
            (Komutlar{{"xfce4-notifyd-config"}, {"xfce4-settings-manager"}}));
  EXPECT_EQ(bildirimAyarlariKomutlari("X-Cinnamon"),
            (Komutlar{{"cinnamon-settings", "notifications"}, {"cinnamon-settings"}}));
  EXPECT_EQ(bildirimAyarlariKomutlari("MATE"),
            (Komutlar{{"mate-notification-properties"}, {"mate-control-center"}}));
  EXPECT_EQ(bildirimAyarlariKomutlari("KDE").front(),
            (std::vector<std::string>{"systemsettings", "kcm_notifications"}));
  EXPECT_EQ(bildirimAyarlariKomutlari("Budgie").front(),
            (std::vector<std::string>{"budgie-control-center", "notifications"}));
}

TEST(BildirimAyarlari, ListedekiHerMasaustununBildirimSayfalariGenelAyarlardanOnceGelir) {
  EXPECT_EQ(bildirimAyarlariKomutlari("ubuntu:GNOME"),
            (Komutlar{{"gnome-control-center", "notifications"}, {"gnome-control-center"}}));
  EXPECT_EQ(bildirimAyarlariKomutlari("Budgie:GNOME"),
            (Komutlar{{"budgie-control-center", "notifications"},
                      {"gnome-control-center", "notifications"},
                      {"budgie-desktop-settings"},
                      {"budgie-control-center"},
                      {"gnome-control-center"}}));
}

TEST(BildirimAyarlari, BildirimSayfasiOlmayanMasaustuGenelAyarlariniAcar) {
  EXPECT_EQ(bildirimAyarlariKomutlari("LXQt"), (Komutlar{{"lxqt-config"}}));
}

TEST(BildirimAyarlari, BilinmeyenVeyaBosMasaustuHicbirSeyAcmaz) {
  EXPECT_TRUE(bildirimAyarlariKomutlari("").empty());
  EXPECT_TRUE(bildirimAyarlariKomutlari("openbox").empty());
  EXPECT_TRUE(bildirimAyarlariKomutlari(":::").empty());
}

}  // namespace
}  // namespace nevo
