#include "app/gezinme.hpp"

#include "temel/adres.hpp"

namespace nevo {

bool gorunumdeKalir(const std::optional<std::string>& istek, std::string_view uygulamaAdresi,
                    std::string_view kimlikSoneki) {
  if (!istek || istek->empty()) return true;
  const auto uygulama = adresCoz(uygulamaAdresi);
  if (!uygulama || !uygulama->host) return true;
  const auto hedef = adresCoz(*istek);
  if (!hedef) return false;
  if (hedef->host == uygulama->host) return true;
  if (hedef->host && hedef->host->ends_with(kimlikSoneki)) return true;
  return hedef->sema == "about";
}

}  // namespace nevo
