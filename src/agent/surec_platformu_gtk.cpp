// On Linux the agent is tied to the shell by the kernel's parent-death signal. It must be
// set in the child before exec, which posix_spawn has no step for, and it fires when the
// starting thread ends: the agent is started from the main thread. The child shares the
// shell's memory until exec, as posix_spawn's does, so no page of the shell is copied.

#include <sched.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <climits>
#include <cstddef>
#include <cstring>
#include <memory>
#include <sstream>

#include "agent/surec_platformu.hpp"
#include "temel/dosya_oku.hpp"

namespace nevo {
namespace {

// All the child reads, made ready before it starts.
struct CocukIstegi {
  const char* program;
  const char* dizin;
  char** argv;
  char** envp;
  int cikti;
  pid_t kabuk;
  int hata = 0;  // set by the child when its program could not be run
};

constexpr std::size_t COCUK_YIGINI = 64 * 1024;

// The shell's handlers would run in its memory: each goes back to the default before the
// child lets signals in.
[[gnu::no_sanitize("address", "undefined")]] void isleyicileriSifirla() {
  struct sigaction varsayilan {};
  varsayilan.sa_handler = SIG_DFL;
  for (int sinyal = 1; sinyal < NSIG; ++sinyal) {
    struct sigaction eski {};
    if (sigaction(sinyal, nullptr, &eski) != 0) continue;
    if (eski.sa_handler != SIG_IGN && eski.sa_handler != SIG_DFL) {
      sigaction(sinyal, &varsayilan, nullptr);
    }
  }
}

// The child, on a stack of its own, in the shell's memory until exec (the shell waits):
// system calls only. An error number goes back in the request.
[[gnu::no_sanitize("address", "undefined")]] int cocuktaCalistir(void* veri) {
  auto& c = *static_cast<CocukIstegi*>(veri);
  isleyicileriSifirla();
  sigset_t bos;
  sigemptyset(&bos);
  sigprocmask(SIG_SETMASK, &bos, nullptr);
  int hata = 0;
  // The shell may have ended before the signal was set: then nothing would send it.
  if (prctl(PR_SET_PDEATHSIG, SIGTERM) != 0 || getppid() != c.kabuk) hata = ESRCH;
  if (hata == 0 && c.cikti >= 0 && (dup2(c.cikti, 1) < 0 || dup2(c.cikti, 2) < 0)) hata = errno;
  if (hata == 0 && chdir(c.dizin) != 0) hata = errno;
  if (hata == 0) {
    execve(c.program, c.argv, c.envp);
    hata = errno;
  }
  c.hata = hata;
  _exit(127);
}

// Starts the child with every signal held back until its handlers are the defaults; the
// shell goes on once the child's program runs or the child has ended.
pid_t cocukBaslat(CocukIstegi& istek) {
  auto yigin = std::make_unique_for_overwrite<std::byte[]>(COCUK_YIGINI);
  sigset_t hepsi;
  sigset_t onceki;
  sigfillset(&hepsi);
  pthread_sigmask(SIG_SETMASK, &hepsi, &onceki);
  const pid_t pid =
      clone(cocuktaCalistir, yigin.get() + COCUK_YIGINI, CLONE_VM | CLONE_VFORK | SIGCHLD, &istek);
  const int hata = errno;
  pthread_sigmask(SIG_SETMASK, &onceki, nullptr);
  errno = hata;
  return pid;
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
    CocukIstegi cocuk{istek.program.c_str(),
                      istek.dizin.c_str(),
                      diziler.argv.data(),
                      diziler.envp.data(),
                      cikti,
                      getpid()};
    const pid_t pid = cocukBaslat(cocuk);
    const int hata = pid < 0 ? errno : cocuk.hata;
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
