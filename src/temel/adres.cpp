#include "temel/adres.hpp"

#include <uriparser/Uri.h>

namespace nevo {
namespace {

std::string metinAraligi(const UriTextRangeA& aralik) {
  if (aralik.first == nullptr || aralik.afterLast == nullptr) return {};
  return std::string(aralik.first, aralik.afterLast);
}

int onaltilik(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

// The path of a reference is what stands between the authority and "?" or "#"
// (RFC 3986, appendix B).
std::string_view hamYol(std::string_view metin) {
  auto son = metin.find_first_of("?#");
  std::string_view govde = metin.substr(0, son);
  auto iki = govde.find(':');
  auto ilkAyrac = govde.find_first_of("/?#");
  if (iki != std::string_view::npos && (ilkAyrac == std::string_view::npos || iki < ilkAyrac)) {
    govde.remove_prefix(iki + 1);
  }
  if (govde.starts_with("//")) {
    govde.remove_prefix(2);
    auto yolBasi = govde.find('/');
    return yolBasi == std::string_view::npos ? std::string_view{} : govde.substr(yolBasi);
  }
  return govde;
}

}  // namespace

std::string yuzdeCoz(std::string_view metin) {
  std::string sonuc;
  sonuc.reserve(metin.size());
  for (std::size_t i = 0; i < metin.size(); ++i) {
    if (metin[i] == '%' && i + 2 < metin.size()) {
      int yuksek = onaltilik(metin[i + 1]);
      int dusuk = onaltilik(metin[i + 2]);
      if (yuksek >= 0 && dusuk >= 0) {
        sonuc.push_back(static_cast<char>(yuksek * 16 + dusuk));
        i += 2;
        continue;
      }
    }
    sonuc.push_back(metin[i]);
  }
  return sonuc;
}

std::string kucukHarfli(std::string metin) {
  for (auto& harf : metin) {
    if (harf >= 'A' && harf <= 'Z') harf = static_cast<char>(harf - 'A' + 'a');
  }
  return metin;
}

bool webAdresi(std::string_view metin) {
  const auto adres = adresCoz(metin);
  if (!adres || !adres->host) return false;
  const auto sema = kucukHarfli(adres->sema);
  return sema == "http" || sema == "https";
}

std::optional<Adres> adresCoz(std::string_view metin) {
  UriUriA uri;
  const char* hata = nullptr;
  if (metin.empty()) return std::nullopt;
  if (uriParseSingleUriExA(&uri, metin.data(), metin.data() + metin.size(), &hata) != URI_SUCCESS) {
    return std::nullopt;
  }
  Adres adres;
  adres.sema = metinAraligi(uri.scheme);
  if (auto host = metinAraligi(uri.hostText); !host.empty()) adres.host = std::move(host);
  adres.port = metinAraligi(uri.portText);
  uriFreeUriMembersA(&uri);
  adres.yol = yuzdeCoz(hamYol(metin));
  return adres;
}

}  // namespace nevo
