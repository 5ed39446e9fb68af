#include "app/indirme/indirme_izni.hpp"

#include "temel/adres.hpp"

namespace nevo {
namespace {

// "scheme://host:port" of a web address, with the scheme's own port when it names none;
// nothing for any other address.
std::optional<std::string> webKokeni(std::string_view adres) {
  const auto cozulen = adresCoz(adres);
  if (!cozulen || !cozulen->host) return std::nullopt;
  const auto sema = kucukHarfli(cozulen->sema);
  if (sema != "http" && sema != "https") return std::nullopt;
  const std::string port = !cozulen->port.empty() ? cozulen->port : sema == "http" ? "80" : "443";
  return sema + "://" + kucukHarfli(*cozulen->host) + ":" + port;
}

// A `blob:` address carries the origin of the document that made it: "blob:https://host/…".
std::optional<std::string> icerikKokeni(std::string_view adres) {
  constexpr std::string_view BLOB = "blob:";
  if (adres.substr(0, BLOB.size()) == BLOB) return webKokeni(adres.substr(BLOB.size()));
  return webKokeni(adres);
}

}  // namespace

bool ekOlarakMi(std::string_view icerikDuzeni) {
  const auto bas = icerikDuzeni.find_first_not_of(" \t");
  if (bas == std::string_view::npos) return false;
  const auto tur = icerikDuzeni.substr(bas, icerikDuzeni.find_first_of("; \t", bas) - bas);
  return kucukHarfli(std::string(tur)) == "attachment";
}

bool uygulamaSayfasinda(const std::optional<std::string>& sayfaAdresi,
                        std::string_view uygulamaAdresi) {
  const auto uygulama = webKokeni(uygulamaAdresi);
  return uygulama && sayfaAdresi && webKokeni(*sayfaAdresi) == uygulama;
}

bool indirmeIzinli(const std::optional<std::string>& sayfaAdresi, std::string_view indirmeAdresi,
                   std::string_view uygulamaAdresi) {
  return uygulamaSayfasinda(sayfaAdresi, uygulamaAdresi) &&
         icerikKokeni(indirmeAdresi) == webKokeni(uygulamaAdresi);
}

}  // namespace nevo
