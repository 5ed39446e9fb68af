#include "bridge/bildirim_merkezi_gtk.hpp"

#include <array>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "bridge/bildirim_ayarlari.hpp"
#include "bridge/bildirim_sesi_gtk.hpp"
#include "temel/glib_gtk.hpp"

namespace nevo {
namespace {

using YetkiGeriCagrisi = std::function<void(BildirimYetkisi)>;

constexpr std::array<const char*, 2> SERVISLER{"org.freedesktop.Notifications",
                                               "org.gtk.Notifications"};
constexpr const char* TIKLAMA = "bildirim-tiklandi";
constexpr const char* EYLEM = "bildirim-eylemi";

bool servisVar(GVariant* adlar) {
  GVariantIter* liste = nullptr;
  g_variant_get(adlar, "(as)", &liste);
  bool var = false;
  const char* ad = nullptr;
  while (!var && g_variant_iter_next(liste, "&s", &ad)) {
    for (const char* servis : SERVISLER) var = var || g_strcmp0(ad, servis) == 0;
  }
  g_variant_iter_free(liste);
  return var;
}

void adlarGeldi(GObject* hat, GAsyncResult* sonuc, gpointer veri) {
  std::unique_ptr<YetkiGeriCagrisi> bitti(static_cast<YetkiGeriCagrisi*>(veri));
  Degisken adlar(g_dbus_connection_call_finish(G_DBUS_CONNECTION(hat), sonuc, nullptr));
  const bool var = adlar && servisVar(adlar.get());
  (*bitti)(var ? BildirimYetkisi::yetkili : BildirimYetkisi::bilinmeyen);
}

}  // namespace

void BildirimMerkeziGtk::yetki(std::function<void(BildirimYetkisi)> bitti) {
  GDBusConnection* hat = g_application_get_dbus_connection(uygulama_);
  if (hat == nullptr) {
    bitti(BildirimYetkisi::bilinmeyen);
    return;
  }
  g_dbus_connection_call(hat, "org.freedesktop.DBus", "/org/freedesktop/DBus",
                         "org.freedesktop.DBus", "ListNames", nullptr, G_VARIANT_TYPE("(as)"),
                         G_DBUS_CALL_FLAGS_NONE, -1, nullptr, adlarGeldi,
                         new YetkiGeriCagrisi(std::move(bitti)));
}

void BildirimMerkeziGtk::gonder(const std::string& baslik, const std::string& govde,
                                const std::string& kimlik) {
  auto bildirim = sahiplen(g_notification_new(baslik.c_str()));
  g_notification_set_body(bildirim.get(), govde.c_str());
  g_notification_set_default_action(bildirim.get(), (std::string("app.") + TIKLAMA).c_str());
  g_application_send_notification(uygulama_, kimlik.c_str(), bildirim.get());
  bildirimSesiCal(g_application_get_dbus_connection(uygulama_), baslik);
}

BildirimMerkeziGtk::~BildirimMerkeziGtk() {
  if (eylemKayitli_) g_action_map_remove_action(G_ACTION_MAP(uygulama_), EYLEM);
}

void BildirimMerkeziGtk::isBildirimi(const std::string& baslik, const std::string& govde,
                                     const std::string& kimlik, const std::string& dugme,
                                     std::function<void()> tiklaninca) {
  eylemiKaydet();
  auto bildirim = sahiplen(g_notification_new(baslik.c_str()));
  g_notification_set_body(bildirim.get(), govde.c_str());
  const std::string eylem = std::string("app.") + EYLEM;
  g_notification_set_default_action_and_target(bildirim.get(), eylem.c_str(), "s", kimlik.c_str());
  if (!dugme.empty()) {
    g_notification_add_button_with_target(bildirim.get(), dugme.c_str(), eylem.c_str(), "s",
                                          kimlik.c_str());
  }
  eylemler_[kimlik] = std::move(tiklaninca);
  g_application_send_notification(uygulama_, kimlik.c_str(), bildirim.get());
}

void BildirimMerkeziGtk::bildirimiGeriCek(const std::string& kimlik) {
  eylemler_.erase(kimlik);
  g_application_withdraw_notification(uygulama_, kimlik.c_str());
}

void BildirimMerkeziGtk::eylemiKaydet() {
  if (std::exchange(eylemKayitli_, true)) return;
  auto eylem = sahiplen(g_simple_action_new(EYLEM, G_VARIANT_TYPE_STRING));
  Sinyal<void(GSimpleAction*, GVariant*)>::bagla(
      eylem.get(), "activate", [this](GSimpleAction*, GVariant* hangisi) {
        const auto yer = eylemler_.find(g_variant_get_string(hangisi, nullptr));
        if (yer != eylemler_.end() && yer->second) yer->second();
      });
  g_action_map_add_action(G_ACTION_MAP(uygulama_), G_ACTION(eylem.get()));
}

// The desktop's own notification settings, else its general settings, where a program
// for them is installed.
void BildirimMerkeziGtk::ayarlariAc() {
  const char* masaustleri = g_getenv("XDG_CURRENT_DESKTOP");
  for (const auto& komut : bildirimAyarlariKomutlari(masaustleri ? masaustleri : "")) {
    GMetin yol(g_find_program_in_path(komut.front().c_str()));
    if (!yol) continue;
    std::vector<char*> argv{yol.get()};
    for (std::size_t i = 1; i < komut.size(); ++i)
      argv.push_back(const_cast<char*>(komut[i].c_str()));
    argv.push_back(nullptr);
    g_spawn_async(nullptr, argv.data(), nullptr, G_SPAWN_DEFAULT, nullptr, nullptr, nullptr,
                  nullptr);
    return;
  }
}

// Each notification carries its own button here.
void BildirimMerkeziGtk::temsilciOl(std::function<void()> tiklandi,
                                    const std::vector<std::string>&) {
  auto eylem = sahiplen(g_simple_action_new(TIKLAMA, nullptr));
  Sinyal<void(GSimpleAction*, GVariant*)>::bagla(
      eylem.get(), "activate",
      [tiklandi = std::move(tiklandi)](GSimpleAction*, GVariant*) { tiklandi(); });
  g_action_map_add_action(G_ACTION_MAP(uygulama_), G_ACTION(eylem.get()));
}

// GApplication brings the notification service's answers to the main thread itself.
std::unique_ptr<BildirimMerkezi> bildirimMerkeziOlustur(AnaKuyruk&) {
  return std::make_unique<BildirimMerkeziGtk>(g_application_get_default());
}

}  // namespace nevo
