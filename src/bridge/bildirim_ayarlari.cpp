#include "bridge/bildirim_ayarlari.hpp"

#include <algorithm>
#include <array>

#include "temel/adres.hpp"

namespace nevo {
namespace {

using Komut = std::vector<std::string>;

struct Masaustu {
  std::string_view ad;  // as `XDG_CURRENT_DESKTOP` names it, compared without case
  std::vector<Komut> bildirimler;
  std::vector<Komut> genel;
};

const std::array<Masaustu, 7>& masaustleri() {
  static const std::array<Masaustu, 7> tablo{{
      {"gnome", {{"gnome-control-center", "notifications"}}, {{"gnome-control-center"}}},
      {"kde",
       {{"systemsettings", "kcm_notifications"}, {"systemsettings5", "kcm_notifications"}},
       {{"systemsettings"}, {"systemsettings5"}}},
      {"xfce", {{"xfce4-notifyd-config"}}, {{"xfce4-settings-manager"}}},
      {"cinnamon", {{"cinnamon-settings", "notifications"}}, {{"cinnamon-settings"}}},
      {"mate", {{"mate-notification-properties"}}, {{"mate-control-center"}}},
      {"budgie",
       {{"budgie-control-center", "notifications"}, {"gnome-control-center", "notifications"}},
       {{"budgie-desktop-settings"}, {"budgie-control-center"}}},
      {"lxqt", {}, {{"lxqt-config"}}},
  }};
  return tablo;
}

// Names outside the registered list carry an "X-" in front ("X-Cinnamon").
const Masaustu* bul(std::string_view ad) {
  std::string kucuk = kucukHarfli(std::string(ad));
  if (kucuk.starts_with("x-")) kucuk.erase(0, 2);
  for (const auto& m : masaustleri()) {
    if (kucuk == m.ad) return &m;
  }
  return nullptr;
}

}  // namespace

std::vector<Komut> bildirimAyarlariKomutlari(std::string_view liste) {
  std::vector<const Masaustu*> bulunanlar;
  while (!liste.empty()) {
    const auto bitis = liste.find(':');
    if (const Masaustu* m = bul(liste.substr(0, bitis))) bulunanlar.push_back(m);
    liste = bitis == std::string_view::npos ? std::string_view{} : liste.substr(bitis + 1);
  }
  std::vector<Komut> komutlar;
  auto ekle = [&komutlar](const std::vector<Komut>& eklenecekler) {
    for (const auto& komut : eklenecekler) {
      if (std::find(komutlar.begin(), komutlar.end(), komut) == komutlar.end()) {
        komutlar.push_back(komut);
      }
    }
  };
  for (const Masaustu* m : bulunanlar) ekle(m->bildirimler);
  for (const Masaustu* m : bulunanlar) ekle(m->genel);
  return komutlar;
}

}  // namespace nevo
