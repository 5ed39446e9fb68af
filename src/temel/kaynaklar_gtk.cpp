#include <filesystem>
#include <system_error>

#include "temel/kaynaklar.hpp"

namespace nevo {
namespace {

std::string kaynakDizini() {
  std::error_code hata;
  const auto calistirilabilir = std::filesystem::read_symlink("/proc/self/exe", hata);
  if (hata) return {};
  return (calistirilabilir.parent_path().parent_path() / "share" / "nevo").string();
}

}  // namespace

std::optional<std::string> kaynakYolu(const std::string& ad) {
  const auto yol = std::filesystem::path(kaynakDizini()) / ad;
  std::error_code hata;
  if (!std::filesystem::exists(yol, hata)) return std::nullopt;
  return yol.string();
}

}  // namespace nevo
