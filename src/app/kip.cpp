#include "app/kip.hpp"

#include "temel/adres.hpp"

namespace nevo {

bool girisKipiMi(std::string_view yol) {
  return yol.empty() || yol == "/" || yol.starts_with("/auth") || yol.starts_with("/sign-up");
}

std::string adresinYolu(const std::optional<std::string>& adres) {
  if (!adres) return {};
  auto cozulen = adresCoz(*adres);
  return cozulen ? cozulen->yol : std::string{};
}

}  // namespace nevo
