#include "bridge/dosya_kaydet.hpp"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

#include "temel/uuid.hpp"

namespace nevo {
namespace {

bool hepsiniYaz(int fd, std::string_view icerik) {
  while (!icerik.empty()) {
    const auto yazilan = ::write(fd, icerik.data(), icerik.size());
    if (yazilan < 0 && errno == EINTR) continue;
    if (yazilan <= 0) return false;
    icerik.remove_prefix(static_cast<std::size_t>(yazilan));
  }
  return true;
}

std::string geciciYol(const std::string& yol) {
  const auto bolu = yol.rfind('/');
  const auto dizin = bolu == std::string::npos ? std::string() : yol.substr(0, bolu + 1);
  const auto ad = bolu == std::string::npos ? yol : yol.substr(bolu + 1);
  return dizin + "." + ad + "." + uuidUret();
}

}  // namespace

bool atomikYaz(const std::string& yol, std::string_view icerik) {
  const auto gecici = geciciYol(yol);
  const int fd = ::open(gecici.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
  if (fd < 0) return false;
  const bool yazildi = hepsiniYaz(fd, icerik) && ::fsync(fd) == 0;
  const bool kapandi = ::close(fd) == 0;
  if (yazildi && kapandi && std::rename(gecici.c_str(), yol.c_str()) == 0) return true;
  ::unlink(gecici.c_str());
  return false;
}

}  // namespace nevo
