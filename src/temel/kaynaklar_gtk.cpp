#include <filesystem>
#include <system_error>

#include "temel/kaynaklar.hpp"

namespace nevo {
std::optional<std::string> kaynakDizini() {
  std::error_code hata;
  const auto calistirilabilir = std::filesystem::read_symlink("/proc/self/exe", hata);
  if (hata) return std::nullopt;
  return (calistirilabilir.parent_path().parent_path() / "share" / "nevo").string();
}

std::optional<std::string> kaynakYolu(const std::string& ad) {
  const auto dizin = kaynakDizini();
  if (!dizin) return std::nullopt;
  const auto yol = std::filesystem::path(*dizin) / ad;
  std::error_code hata;
  if (!std::filesystem::exists(yol, hata)) return std::nullopt;
  return yol.string();
}

}  // namespace nevo
