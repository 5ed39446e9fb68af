// On Linux the agent is tied to the shell by the kernel's parent-death signal. It must be
// set in the child between fork and exec, which posix_spawn has no step for, and it fires
// when the forking thread ends: the agent is forked from the main thread.

#include <fcntl.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <climits>
#include <cstring>
#include <sstream>

#include "agent/surec_platformu.hpp"
#include "temel/dosya_oku.hpp"

namespace nevo {
namespace {

// In the forked child: only calls that are safe after fork in a threaded process. An
// error number goes back through `hataUcu`, which closes by itself once exec succeeds.
[[noreturn]] void cocuktaCalistir(const SurecIstegi& istek, KomutDizileri& diziler, int cikti,
                                  pid_t kabuk, int hataUcu) {
  sigset_t bos;
  sigemptyset(&bos);
  sigprocmask(SIG_SETMASK, &bos, nullptr);
  int hata = 0;
  // The shell may have ended before the signal was set: then nothing would send it.
  if (prctl(PR_SET_PDEATHSIG, SIGTERM) != 0 || getppid() != kabuk) hata = ESRCH;
  if (hata == 0 && cikti >= 0 && (dup2(cikti, 1) < 0 || dup2(cikti, 2) < 0)) hata = errno;
  if (hata == 0 && chdir(istek.dizin.c_str()) != 0) hata = errno;
  if (hata == 0) {
    execve(istek.program.c_str(), diziler.argv.data(), diziler.envp.data());
    hata = errno;
  }
  [[maybe_unused]] const auto yazilan = write(hataUcu, &hata, sizeof hata);
  _exit(127);
}

// The child's error number, or 0 once its program runs (the pipe closed without a word).
int cocugunHatasi(int okumaUcu) {
  int hata = 0;
  for (;;) {
    const auto okunan = read(okumaUcu, &hata, sizeof hata);
    if (okunan < 0 && errno == EINTR) continue;
    return okunan == static_cast<ssize_t>(sizeof hata) ? hata : 0;
  }
}

// The start of the process in clock ticks after boot: the 22nd field of its stat line,
// counted after the command name, which may hold spaces and parentheses.
std::optional<std::string> baslangicZamani(long numara) {
  const auto satir = dosyaOku("/proc/" + std::to_string(numara) + "/stat").value_or("");
  const auto ad = satir.rfind(')');
  if (ad == std::string::npos) return std::nullopt;
  std::istringstream alanlar(satir.substr(ad + 1));
  std::string alan;
  for (int i = 3; i <= 22 && (alanlar >> alan); ++i) {
    if (i == 22) return alan;
  }
  return std::nullopt;
}

std::optional<std::string> program(long numara) {
  std::array<char, PATH_MAX> yol{};
  const auto uzunluk =
      readlink(("/proc/" + std::to_string(numara) + "/exe").c_str(), yol.data(), yol.size());
  if (uzunluk <= 0 || static_cast<std::size_t>(uzunluk) >= yol.size()) return std::nullopt;
  return std::string(yol.data(), static_cast<std::size_t>(uzunluk));
}

class SurecPlatformuGtk final : public SurecPlatformu {
 public:
  std::variant<std::unique_ptr<Surec>, std::string> bagliBaslat(const SurecIstegi& istek,
                                                                int cikti) override {
    KomutDizileri diziler(istek);
    int uclar[2];
    if (pipe2(uclar, O_CLOEXEC) != 0) return std::string(std::strerror(errno));
    const pid_t kabuk = getpid();
    const pid_t pid = fork();
    if (pid == 0) cocuktaCalistir(istek, diziler, cikti, kabuk, uclar[1]);
    const int catalHatasi = errno;
    close(uclar[1]);
    const int hata = pid < 0 ? catalHatasi : cocugunHatasi(uclar[0]);
    close(uclar[0]);
    if (pid < 0) return std::string(std::strerror(hata));
    if (hata != 0) {
      while (waitpid(pid, nullptr, 0) < 0 && errno == EINTR) {
      }
      return std::string(std::strerror(hata));
    }
    return cocukSureci(pid);
  }

  std::optional<SurecKimligi> kimlik(long numara) const override {
    if (numara <= 0) return std::nullopt;
    auto baslangic = baslangicZamani(numara);
    auto yol = program(numara);
    if (!baslangic || !yol) return std::nullopt;
    return SurecKimligi{std::move(*baslangic), std::move(*yol)};
  }

  // Held by a process descriptor, the process cannot be swapped for another with its
  // number between the check and the signal.
  void kayitliysaSonlandir(const AjanKaydi& kayit) override {
    if (kayit.numara <= 0) return;
    const int tutamak = static_cast<int>(syscall(SYS_pidfd_open, kayit.numara, 0));
    if (tutamak < 0) return;
    if (halaAyniSurec(kayit, kimlik(kayit.numara))) {
      syscall(SYS_pidfd_send_signal, tutamak, SIGTERM, nullptr, 0);
    }
    close(tutamak);
  }
};

}  // namespace

std::unique_ptr<SurecPlatformu> surecPlatformuOlustur() {
  return std::make_unique<SurecPlatformuGtk>();
}

}  // namespace nevo
