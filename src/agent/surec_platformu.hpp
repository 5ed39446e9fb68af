#pragma once
#include <memory>
#include <optional>
#include <string>
#include <variant>

#include "agent/ajan_kaydi.hpp"
#include "agent/surec.hpp"

namespace nevo {

// What the platform adds to starting the long-running agent: tying it to the shell, and
// telling a process from a later one with the same number.
class SurecPlatformu {
 public:
  virtual ~SurecPlatformu() = default;
  // Starts the program as surecBaslat does; where the system can, the child receives
  // SIGTERM when the shell ends, however it ends. Returns once the program runs.
  virtual std::variant<std::unique_ptr<Surec>, std::string> bagliBaslat(const SurecIstegi& istek,
                                                                        int cikti) = 0;
  // The running process with this number; nothing when none runs or it cannot be read.
  virtual std::optional<SurecKimligi> kimlik(long numara) const = 0;
  // Sends SIGTERM to the process that `kayit` names while it is still that process
  // (halaAyniSurec), without waiting for it to end; any other process is never touched.
  virtual void kayitliysaSonlandir(const AjanKaydi& kayit) = 0;
};

std::unique_ptr<SurecPlatformu> surecPlatformuOlustur();

}  // namespace nevo
