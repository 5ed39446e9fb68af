#pragma once
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "temel/ana_kuyruk.hpp"

namespace nevo {

// The system's notification authorisation status (UNAuthorizationStatus and the like).
enum class BildirimYetkisi { belirlenmedi, reddedildi, yetkili, gecici, anlik, bilinmeyen };

// The status word sent to the page: "verildi", "sorulmadi", "reddedildi" or
// "desteklenmiyor".
const char* bildirimKelimesi(BildirimYetkisi yetki);

// The system's notification service. Completions may arrive later; the
// platform layer brings them back to the main thread before calling them.
class BildirimMerkezi {
 public:
  virtual ~BildirimMerkezi() = default;
  virtual void yetki(std::function<void(BildirimYetkisi)> bitti) = 0;  // settings read afresh
  virtual void izinIste(std::function<void()> bitti) = 0;  // alert and sound; any answer
  // Posts at once with the default sound; `kimlik` keeps equal texts apart.
  virtual void gonder(const std::string& baslik, const std::string& govde,
                      const std::string& kimlik) = 0;
  // A notification of the shell's own work, silent; one with the same `kimlik` takes its
  // place. A click on it, or on its button `dugme` (none when empty), calls `tiklaninca`
  // (nothing when empty) instead of the delegate.
  virtual void isBildirimi(const std::string& baslik, const std::string& govde,
                           const std::string& kimlik, const std::string& dugme,
                           std::function<void()> tiklaninca) = 0;
  virtual void bildirimiGeriCek(const std::string& kimlik) = 0;
  virtual void ayarlariAc() = 0;  // the system's notification settings
  // Makes the application the service's delegate: a click on a notification calls this.
  // `dugmeler` are all the buttons the shell's own notifications may carry: a service that
  // shows only buttons it was told of at start (macOS's categories) learns them here.
  virtual void temsilciOl(std::function<void()> tiklandi,
                          const std::vector<std::string>& dugmeler) = 0;
};

}  // namespace nevo

namespace nevo {

// The platform's notification service; its completions come back through `kuyruk`.
std::unique_ptr<BildirimMerkezi> bildirimMerkeziOlustur(AnaKuyruk& kuyruk);

}  // namespace nevo
