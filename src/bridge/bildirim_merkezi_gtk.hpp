#pragma once
#include <gio/gio.h>

#include <functional>
#include <map>
#include <string>

#include "bridge/bildirim.hpp"

namespace nevo {

// Notifications through GNotification: the desktop's notification
// service; a click is the default action "app.bildirim-tiklandi". Linux asks no
// permission: with a notification service on the session bus the status is granted,
// without one it is unknown ("desteklenmiyor").
class BildirimMerkeziGtk final : public BildirimMerkezi {
 public:
  explicit BildirimMerkeziGtk(GApplication* uygulama) : uygulama_(uygulama) {}
  ~BildirimMerkeziGtk() override;
  BildirimMerkeziGtk(const BildirimMerkeziGtk&) = delete;
  BildirimMerkeziGtk& operator=(const BildirimMerkeziGtk&) = delete;
  void yetki(std::function<void(BildirimYetkisi)> bitti) override;
  void izinIste(std::function<void()> bitti) override { bitti(); }
  void gonder(const std::string& baslik, const std::string& govde,
              const std::string& kimlik) override;
  void isBildirimi(const std::string& baslik, const std::string& govde, const std::string& kimlik,
                   const std::string& dugme, std::function<void()> tiklaninca) override;
  void bildirimiGeriCek(const std::string& kimlik) override;
  void ayarlariAc() override;
  void temsilciOl(std::function<void()> tiklandi,
                  const std::vector<std::string>& dugmeler) override;

 private:
  void eylemiKaydet();

  GApplication* uygulama_;
  // The clicks of the shell's own notifications, by notification; the action
  // "app.bildirim-eylemi" names the notification.
  std::map<std::string, std::function<void()>> eylemler_;
  bool eylemKayitli_ = false;
};

}  // namespace nevo
