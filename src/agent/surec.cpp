#include "agent/surec.hpp"

#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <mutex>
#include <thread>
#include <utility>

namespace nevo {
namespace {

// The child's state, shared with the thread that waits for it: once the child has ended
// and been reaped its number may belong to another process, so no signal is sent then.
struct CocukDurumu {
  explicit CocukDurumu(pid_t p) : pid(p) {}
  std::mutex kilit;
  const pid_t pid;
  bool bitti = false;
};

class PosixSurec final : public Surec {
 public:
  explicit PosixSurec(pid_t pid) : durum_(std::make_shared<CocukDurumu>(pid)) {
    std::thread([durum = durum_] {
      siginfo_t bilgi{};
      while (waitid(P_PID, static_cast<id_t>(durum->pid), &bilgi, WEXITED | WNOWAIT) != 0 &&
             errno == EINTR) {
      }
      const std::lock_guard kilit(durum->kilit);
      durum->bitti = true;
      waitpid(durum->pid, nullptr, 0);
    }).detach();
  }
  bool calisiyor() const override {
    const std::lock_guard kilit(durum_->kilit);
    return !durum_->bitti;
  }
  void sonlandir() override {
    const std::lock_guard kilit(durum_->kilit);
    if (!durum_->bitti) kill(durum_->pid, SIGTERM);
  }
  long numara() const override { return durum_->pid; }

 private:
  std::shared_ptr<CocukDurumu> durum_;
};

// A started child's number, or the error number.
struct Baslama {
  pid_t pid = -1;
  int hata = 0;
};

Baslama baslat(const SurecIstegi& istek, int cikti) {
  posix_spawn_file_actions_t eylemler;
  if (const int hata = posix_spawn_file_actions_init(&eylemler)) return {-1, hata};
  int hata = posix_spawn_file_actions_addchdir_np(&eylemler, istek.dizin.c_str());
  if (hata == 0 && cikti >= 0) hata = posix_spawn_file_actions_adddup2(&eylemler, cikti, 1);
  if (hata == 0 && cikti >= 0) hata = posix_spawn_file_actions_adddup2(&eylemler, cikti, 2);
  pid_t pid = -1;
  if (hata == 0) {
    KomutDizileri diziler(istek);
    hata = posix_spawn(&pid, istek.program.c_str(), &eylemler, nullptr, diziler.argv.data(),
                       diziler.envp.data());
  }
  posix_spawn_file_actions_destroy(&eylemler);
  if (hata != 0) return {-1, hata};
  return {pid, 0};
}

// A pipe whose ends no other child inherits. Where pipe2 exists the flag is set atomically;
// elsewhere a spawn on another thread in between could inherit the write end, which only
// delays this run's end of output until that other child exits.
bool kapanirBoru(int uclar[2]) {
#if defined(__linux__)
  return pipe2(uclar, O_CLOEXEC) == 0;
#else
  if (pipe(uclar) != 0) return false;
  fcntl(uclar[0], F_SETFD, FD_CLOEXEC);
  fcntl(uclar[1], F_SETFD, FD_CLOEXEC);
  return true;
#endif
}

std::string okuSonunaKadar(int fd) {
  std::string sonuc;
  char tampon[4096];
  for (;;) {
    const auto okunan = read(fd, tampon, sizeof tampon);
    if (okunan < 0 && errno == EINTR) continue;
    if (okunan <= 0) return sonuc;
    sonuc.append(tampon, static_cast<std::size_t>(okunan));
  }
}

}  // namespace

KomutDizileri::KomutDizileri(const SurecIstegi& istek) {
  metinler.push_back(istek.program);
  metinler.insert(metinler.end(), istek.argumanlar.begin(), istek.argumanlar.end());
  const auto argumanSayisi = metinler.size();
  for (const auto& [ad, deger] : istek.ortam) metinler.push_back(ad + "=" + deger);
  for (std::size_t i = 0; i < metinler.size(); ++i) {
    (i < argumanSayisi ? argv : envp).push_back(metinler[i].data());
  }
  argv.push_back(nullptr);
  envp.push_back(nullptr);
}

std::unique_ptr<Surec> cocukSureci(long numara) {
  return std::make_unique<PosixSurec>(static_cast<pid_t>(numara));
}

std::variant<std::unique_ptr<Surec>, std::string> surecBaslat(const SurecIstegi& istek, int cikti) {
  const auto sonuc = baslat(istek, cikti);
  if (sonuc.hata != 0) return std::string(std::strerror(sonuc.hata));
  return cocukSureci(sonuc.pid);
}

SurecSonucu surecCalistir(const SurecIstegi& istek) {
  int uclar[2];
  if (!kapanirBoru(uclar)) return {};
  const auto sonuc = baslat(istek, uclar[1]);
  close(uclar[1]);
  if (sonuc.hata != 0) {
    close(uclar[0]);
    return {};
  }
  // Reading while the child runs keeps a long answer from filling the pipe and stalling it;
  // the result is still only built once the child has exited.
  auto cikti = okuSonunaKadar(uclar[0]);
  close(uclar[0]);
  int durum = 0;
  while (waitpid(sonuc.pid, &durum, 0) < 0 && errno == EINTR) {
  }
  return {WIFEXITED(durum) ? WEXITSTATUS(durum) : 128 + WTERMSIG(durum), std::move(cikti)};
}

}  // namespace nevo
