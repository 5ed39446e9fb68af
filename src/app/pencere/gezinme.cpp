#include "app/pencere/gezinme.hpp"

#include "temel/adres.hpp"

namespace nevo {

bool gorunumdeKalir(const std::optional<std::string>& istek, std::string_view uygulamaAdresi,
                    std::string_view kimlikSoneki) {
  if (!istek || istek->empty()) return true;
  const auto uygulama = adresCoz(uygulamaAdresi);
  if (!uygulama || !uygulama->host) return true;
  const auto hedef = adresCoz(*istek);
  if (!hedef) return false;
  if (hedef->host == kucukHarfli(*uygulama->host)) return true;
  // Content a document of the application made ("blob:https://host/…"): the page's own
  // downloads of it go through here before they become downloads.
  if (hedef->sema == "blob") {
    const auto kaynak = adresCoz(std::string_view(*istek).substr(std::string_view("blob:").size()));
    return kaynak && kaynak->host == kucukHarfli(*uygulama->host);
  }
  if (hedef->host && hedef->host->ends_with(kimlikSoneki)) return true;
  return hedef->sema == "about";
}

bool disariCikabilir(std::string_view adres) {
  const auto cozulen = adresCoz(adres);
  if (!cozulen) return false;
  return cozulen->sema == "http" || cozulen->sema == "https" || cozulen->sema == "mailto";
}

GezinmeKarari gezinmeKarari(const std::optional<std::string>& istek,
                            std::string_view uygulamaAdresi, std::string_view kimlikSoneki,
                            const GezinmeKaynagi& kaynak) {
  if (gorunumdeKalir(istek, uygulamaAdresi, kimlikSoneki)) return GezinmeKarari::Kal;
  const bool anaCercevedenIstendi = kaynak.anaCerceve.value_or(kaynak.kullaniciHareketi);
  if (!anaCercevedenIstendi || !disariCikabilir(*istek)) return GezinmeKarari::Iptal;
  return GezinmeKarari::DisaridaAc;
}

}  // namespace nevo
