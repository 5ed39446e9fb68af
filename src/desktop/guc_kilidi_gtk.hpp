#pragma once
#include <gio/gio.h>

#include <map>
#include <string>

#include "desktop/uyku_engeli.hpp"

namespace nevo {

// A suspend inhibitor over the session bus, tried in the order
// desktop browsers use: GNOME's session manager (flag 4, suspend), the freedesktop power
// management service, the desktop portal. No service: refused, silently.
class GucKilidiGtk final : public GucKilidi {
 public:
  explicit GucKilidiGtk(std::string uygulamaKimligi) : kimlik_(std::move(uygulamaKimligi)) {}
  std::uint32_t al(const std::string& neden) override;
  void birak(std::uint32_t kimlik) override;

 private:
  struct Tutulan {
    int servis;               // index into the service table
    std::uint32_t cerez = 0;  // the cookie of the session manager / power management
    std::string istek;        // the portal's request handle
  };
  std::string kimlik_;
  std::map<std::uint32_t, Tutulan> tutulanlar_;
  std::uint32_t sonKimlik_ = 0;
};

}  // namespace nevo
