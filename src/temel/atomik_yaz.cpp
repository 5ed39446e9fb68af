#include "temel/atomik_yaz.hpp"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <memory>

#include "temel/uuid.hpp"

namespace nevo {
namespace {

constexpr int EN_COK_BAG = 40;  // as many links as the system follows in one path

bool hepsiniYaz(int fd, std::string_view icerik) {
  while (!icerik.empty()) {
    const auto yazilan = ::write(fd, icerik.data(), icerik.size());
    if (yazilan < 0 && errno == EINTR) continue;
    if (yazilan <= 0) return false;
    icerik.remove_prefix(static_cast<std::size_t>(yazilan));
  }
  return true;
}

std::string dizini(const std::string& yol) {
  const auto bolu = yol.rfind('/');
  return bolu == std::string::npos ? std::string() : yol.substr(0, bolu + 1);
}

std::string adi(const std::string& yol) {
  const auto bolu = yol.rfind('/');
  return bolu == std::string::npos ? yol : yol.substr(bolu + 1);
}

// The file a write to `yol` replaces: links followed, a dangling one included.
std::string hedefi(std::string yol) {
  for (int i = 0; i < EN_COK_BAG; ++i) {
    struct stat bilgi {};
    if (::lstat(yol.c_str(), &bilgi) != 0 || !S_ISLNK(bilgi.st_mode)) return yol;
    std::string bag(static_cast<std::size_t>(bilgi.st_size > 0 ? bilgi.st_size : 255) + 1, '\0');
    const auto uzunluk = ::readlink(yol.c_str(), bag.data(), bag.size());
    if (uzunluk <= 0) return yol;
    bag.resize(static_cast<std::size_t>(uzunluk));
    yol = bag.starts_with('/') ? bag : dizini(yol) + bag;
  }
  return yol;
}

// "." + name + "." + the writer's process id + "." + a UUID: hidden, never taken for
// the file itself, and telling whose it is.
std::string geciciOneki(const std::string& yol) { return "." + adi(yol) + "."; }

// The process id in a temporary name of ours, or 0 when the name is not one.
pid_t yazanSurec(std::string_view ad, std::string_view onek) {
  constexpr std::size_t UUID_UZUNLUGU = 36;
  if (!ad.starts_with(onek) || ad.size() <= onek.size() + UUID_UZUNLUGU + 1) return 0;
  const auto kimlik = ad.substr(onek.size(), ad.size() - onek.size() - UUID_UZUNLUGU - 1);
  if (ad[ad.size() - UUID_UZUNLUGU - 1] != '.' || kimlik.empty() || kimlik.size() > 9) return 0;
  pid_t surec = 0;
  for (const char c : kimlik) {
    if (c < '0' || c > '9') return 0;
    surec = surec * 10 + (c - '0');
  }
  return surec;
}

}  // namespace

std::string geciciYol(const std::string& yol) {
  return dizini(yol) + geciciOneki(yol) + std::to_string(::getpid()) + "." + uuidUret();
}

bool atomikYaz(const std::string& yol, std::string_view icerik, Dayaniklilik dayaniklilik) {
  const auto hedef = hedefi(yol);
  const auto gecici = geciciYol(hedef);
  const int fd = ::open(gecici.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
  if (fd < 0) return false;
  struct stat eski {};
  bool yazildi = true;
  if (::stat(hedef.c_str(), &eski) == 0) yazildi = ::fchmod(fd, eski.st_mode & 07777) == 0;
  yazildi = yazildi && hepsiniYaz(fd, icerik) &&
            (dayaniklilik == Dayaniklilik::Cokme || ::fsync(fd) == 0);
  const bool kapandi = ::close(fd) == 0;
  if (yazildi && kapandi && std::rename(gecici.c_str(), hedef.c_str()) == 0) return true;
  ::unlink(gecici.c_str());
  return false;
}

void yarimKalanlariTemizle(const std::string& yol) {
  const auto hedef = hedefi(yol);
  const auto dizin = dizini(hedef);
  const auto onek = geciciOneki(hedef);
  std::unique_ptr<DIR, int (*)(DIR*)> akis(::opendir(dizin.empty() ? "." : dizin.c_str()),
                                           ::closedir);
  if (!akis) return;
  while (const dirent* girdi = ::readdir(akis.get())) {
    const pid_t surec = yazanSurec(girdi->d_name, onek);
    if (surec <= 0) continue;
    if (::kill(surec, 0) == 0 || errno != ESRCH) continue;
    ::unlink((dizin + girdi->d_name).c_str());
  }
}

}  // namespace nevo
