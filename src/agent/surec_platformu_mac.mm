// macOS has no parent-death signal: the agent starts as every child does, and the record
// of the running agent is what stops one left behind by a shell that died.

#include <libproc.h>
#include <signal.h>

#include <string>

#include "agent/surec_platformu.hpp"

namespace nevo {
namespace {

class SurecPlatformuMac final : public SurecPlatformu {
 public:
  std::variant<std::unique_ptr<Surec>, std::string> bagliBaslat(const SurecIstegi& istek,
                                                                int cikti) override {
    return surecBaslat(istek, cikti);
  }

  std::optional<SurecKimligi> kimlik(long numara) const override {
    if (numara <= 0) return std::nullopt;
    const int pid = static_cast<int>(numara);
    struct proc_bsdinfo bilgi = {};
    const int boy = static_cast<int>(PROC_PIDTBSDINFO_SIZE);
    if (proc_pidinfo(pid, PROC_PIDTBSDINFO, 0, &bilgi, boy) != boy) return std::nullopt;
    char yol[PROC_PIDPATHINFO_MAXSIZE];
    if (proc_pidpath(pid, yol, sizeof yol) <= 0) return std::nullopt;
    return SurecKimligi{
        std::to_string(bilgi.pbi_start_tvsec) + "." + std::to_string(bilgi.pbi_start_tvusec), yol};
  }

  void kayitliysaSonlandir(const AjanKaydi& kayit) override {
    if (kayit.numara > 0 && halaAyniSurec(kayit, kimlik(kayit.numara))) {
      kill(static_cast<pid_t>(kayit.numara), SIGTERM);
    }
  }
};

}  // namespace

std::unique_ptr<SurecPlatformu> surecPlatformuOlustur() {
  return std::make_unique<SurecPlatformuMac>();
}

}  // namespace nevo
