#include "app/pencere/menu_kurucu_gtk.hpp"

#include <cctype>

#include "temel/glib_gtk.hpp"

namespace nevo {
namespace {

std::string hizlandirici(const MenuOgesi& oge) {
  const char tus = static_cast<char>(std::tolower(static_cast<unsigned char>(oge.tus[0])));
  return std::string(shiftEkler(oge) ? "<Shift>" : "") + "<Control>" + tus;
}

// Consecutive entries between separators form one section, which GTK draws separated.
GMenu* altMenuKur(const AltMenu& alt) {
  GMenu* menu = g_menu_new();
  GMenu* bolum = g_menu_new();
  auto bolumuKapat = [&] {
    if (g_menu_model_get_n_items(G_MENU_MODEL(bolum)) > 0) {
      g_menu_append_section(menu, nullptr, G_MENU_MODEL(bolum));
    }
    g_object_unref(bolum);
    bolum = g_menu_new();
  };
  for (const auto& oge : alt.ogeler) {
    if (ayracMi(oge)) {
      bolumuKapat();
    } else {
      g_menu_append(bolum, oge.baslik.c_str(), ("app." + oge.eylem).c_str());
    }
  }
  bolumuKapat();
  g_object_unref(bolum);
  return menu;
}

}  // namespace

void MenuKurucuGtk::eylemEkle(const MenuOgesi& oge) {
  auto eylem = sahiplen(g_simple_action_new(oge.eylem.c_str(), nullptr));
  baglantilar_.bagla<void(GSimpleAction*, GVariant*)>(
      eylem.get(), "activate", [this, ad = oge.eylem](GSimpleAction*, GVariant*) { secim_(ad); });
  g_simple_action_set_enabled(eylem.get(), oge.etkin);
  g_action_map_add_action(G_ACTION_MAP(uygulama_), G_ACTION(eylem.get()));
  if (!oge.tus.empty()) {
    const std::string tus = hizlandirici(oge);
    const char* tuslar[] = {tus.c_str(), nullptr};
    gtk_application_set_accels_for_action(uygulama_, ("app." + oge.eylem).c_str(), tuslar);
  }
}

void MenuKurucuGtk::kur(const std::vector<AltMenu>& menu) {
  auto cubuk = sahiplen(g_menu_new());
  for (const auto& alt : menu) {
    for (const auto& oge : alt.ogeler) {
      if (!ayracMi(oge)) eylemEkle(oge);
    }
    auto altMenu = sahiplen(altMenuKur(alt));
    const std::string baslik = alt.baslik.empty() ? g_get_application_name() : alt.baslik;
    g_menu_append_submenu(cubuk.get(), baslik.c_str(), G_MENU_MODEL(altMenu.get()));
  }
  gtk_application_set_menubar(uygulama_, G_MENU_MODEL(cubuk.get()));
}

std::unique_ptr<MenuKurucu> menuKurucuOlustur(std::function<void(const std::string&)> secildi) {
  return std::make_unique<MenuKurucuGtk>(GTK_APPLICATION(g_application_get_default()),
                                         std::move(secildi));
}

}  // namespace nevo
