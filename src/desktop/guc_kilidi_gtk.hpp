#pragma once
#include <gio/gio.h>

#include <map>
#include <memory>
#include <string>

#include "desktop/uyku_engeli.hpp"

namespace nevo {

// A suspend inhibitor over the session bus, tried in the order
// desktop browsers use: GNOME's session manager (flag 4, suspend), the freedesktop power
// management service, the desktop portal. The bus is never waited on: the hold is held
// once a service answers with its cookie (the portal: its request handle, until the
// request's response refuses it); no service refuses it, silently.
class GucKilidiGtk final : public GucKilidi {
 public:
  explicit GucKilidiGtk(std::string uygulamaKimligi) : kimlik_(std::move(uygulamaKimligi)) {}
  void al(const std::string& neden, Cevap cevap) override;
  void birak(std::uint32_t kimlik) override;

 private:
  struct Tutma;  // one hold, from the request to its release

  std::string kimlik_;
  std::shared_ptr<std::map<std::uint32_t, std::shared_ptr<Tutma>>> tutmalar_ =
      std::make_shared<std::map<std::uint32_t, std::shared_ptr<Tutma>>>();
  std::uint32_t sonKimlik_ = 0;
};

}  // namespace nevo
