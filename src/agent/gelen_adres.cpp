#include "agent/gelen_adres.hpp"

#include <uriparser/Uri.h>

#include <cctype>
#include <map>
#include <vector>

#include "temel/adres.hpp"
#include "temel/karakterler.hpp"

namespace nevo {
namespace {

using Parametreler = std::map<std::string, std::string, std::less<>>;

std::vector<std::string_view> bol(std::string_view metin, char ayrac) {
  std::vector<std::string_view> parcalar;
  for (std::size_t bas = 0;;) {
    const auto son = metin.find(ayrac, bas);
    parcalar.push_back(metin.substr(bas, son - bas));
    if (son == std::string_view::npos) return parcalar;
    bas = son + 1;
  }
}

// Percent-decoded text, or nothing when a "%" does not start two hexadecimal digits or the
// result is not UTF-8.
std::optional<std::string> yuzdeCozKati(std::string_view metin) {
  for (std::size_t i = metin.find('%'); i != std::string_view::npos; i = metin.find('%', i + 1)) {
    if (i + 2 >= metin.size() || !std::isxdigit(static_cast<unsigned char>(metin[i + 1])) ||
        !std::isxdigit(static_cast<unsigned char>(metin[i + 2]))) {
      return std::nullopt;
    }
  }
  auto sonuc = yuzdeCoz(metin);
  if (!utf8Mi(sonuc)) return std::nullopt;
  return sonuc;
}

// The query of a link that parses as a URI, when it has one.
std::optional<std::string> sorgu(std::string_view adres) {
  if (adres.empty()) return std::nullopt;
  UriUriA uri;
  const char* hata = nullptr;
  if (uriParseSingleUriExA(&uri, adres.data(), adres.data() + adres.size(), &hata) != URI_SUCCESS) {
    return std::nullopt;
  }
  std::optional<std::string> sonuc;
  if (uri.query.first != nullptr) sonuc.emplace(uri.query.first, uri.query.afterLast);
  uriFreeUriMembersA(&uri);
  return sonuc;
}

std::string_view degerVeya(const Parametreler& p, std::string_view ad, std::string_view yoksa) {
  const auto bulunan = p.find(ad);
  return bulunan == p.end() ? yoksa : std::string_view(bulunan->second);
}

}  // namespace

std::optional<BaglantiSonucu> baglantiOku(std::string_view adres) {
  const auto metin = sorgu(adres);
  if (!metin) return std::nullopt;
  Parametreler ogeler;
  for (const auto oge : bol(*metin, '&')) {
    if (oge.empty()) continue;
    const auto esit = oge.find('=');
    const auto ad = oge.substr(0, esit);
    const auto deger = esit == std::string_view::npos ? std::string_view{} : oge.substr(esit + 1);
    ogeler[yuzdeCozKati(ad).value_or(std::string(ad))] =
        yuzdeCozKati(deger).value_or(std::string(deger));
  }
  return BaglantiSonucu{std::string(degerVeya(ogeler, "kod", "")),
                        std::string(degerVeya(ogeler, "baglanti", "hata"))};
}

std::optional<OturumJetonlari> oturumOku(std::string_view adres) {
  const auto kare = adres.find('#');
  const auto parca = kare == std::string_view::npos ? std::string_view{} : adres.substr(kare + 1);
  Parametreler parametreler;
  for (const auto oge : bol(parca, '&')) {
    const auto ikili = bol(oge, '=');
    if (ikili.size() != 2) continue;
    parametreler[std::string(ikili[0])] = yuzdeCozKati(ikili[1]).value_or(std::string(ikili[1]));
  }
  const auto erisim = parametreler.find("access_token");
  const auto yenileme = parametreler.find("refresh_token");
  if (erisim == parametreler.end() || yenileme == parametreler.end()) return std::nullopt;
  return OturumJetonlari{erisim->second, yenileme->second};
}

bool baglantiAdresiMi(std::string_view adres) {
  return adres.find("auth/baglanti") != std::string_view::npos;
}

}  // namespace nevo
