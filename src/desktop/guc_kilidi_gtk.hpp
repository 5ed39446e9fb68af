#pragma once
#include <gio/gio.h>

#include <map>
#include <memory>
#include <string>

#include "desktop/uyku_engeli.hpp"

namespace nevo {

// A suspend inhibitor over the session bus, tried in the order
// desktop browsers use: GNOME's session manager (flag 4, suspend), the freedesktop power
// management service, the desktop portal. No service: nothing is held, silently.
// The bus is never waited on: `al` hands out a handle at once and the service's answer
// arrives later; a handle released before the answer gives the hold back as soon as it
// comes.
class GucKilidiGtk final : public GucKilidi {
 public:
  explicit GucKilidiGtk(std::string uygulamaKimligi) : kimlik_(std::move(uygulamaKimligi)) {}
  std::uint32_t al(const std::string& neden) override;
  void birak(std::uint32_t kimlik) override;

 private:
  struct Tutma;  // one hold, from the request to its release

  std::string kimlik_;
  std::map<std::uint32_t, std::shared_ptr<Tutma>> tutmalar_;
  std::uint32_t sonKimlik_ = 0;
};

}  // namespace nevo
