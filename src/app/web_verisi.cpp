#include "app/web_verisi.hpp"

#include <stdlib.h>
#include <unistd.h>

#include <filesystem>

namespace nevo {

namespace fs = std::filesystem;

bool eskiVeriyiTasi(const std::string& eski, const std::string& yeni) {
  std::error_code hata;
  if (!fs::is_directory(fs::symlink_status(eski, hata))) return false;
  // A place that cannot be looked at reads as taken: nothing moves.
  const auto hedef = fs::symlink_status(yeni, hata);
  if (hedef.type() != fs::file_type::not_found) return false;
  fs::create_directories(fs::path(yeni).parent_path(), hata);
  fs::rename(eski, yeni, hata);
  return !hata;
}

bool yazilabilirDizin(const std::string& yol) {
  std::error_code hata;
  fs::create_directories(yol, hata);
  if (!fs::is_directory(yol, hata)) return false;
  std::string sinama = yol + "/.yazilabilir-XXXXXX";
  const int dosya = mkstemp(sinama.data());
  if (dosya < 0) return false;
  close(dosya);
  unlink(sinama.c_str());
  return true;
}

}  // namespace nevo
