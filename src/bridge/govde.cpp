#include "bridge/govde.hpp"

#include <limits>

#include "temel/utf8.hpp"

namespace nevo {
namespace {

const nlohmann::json* uye(const nlohmann::json& govde, const char* anahtar) {
  if (!govde.is_object()) return nullptr;
  auto bulunan = govde.find(anahtar);
  return bulunan == govde.end() ? nullptr : &*bulunan;
}

}  // namespace

std::optional<std::string> metinAlani(const nlohmann::json& govde, const char* anahtar) {
  const auto* deger = uye(govde, anahtar);
  if (deger == nullptr || !deger->is_string()) return std::nullopt;
  return deger->get<std::string>();
}

std::optional<bool> mantiksalAlan(const nlohmann::json& govde, const char* anahtar) {
  const auto* deger = uye(govde, anahtar);
  if (deger == nullptr || !deger->is_boolean()) return std::nullopt;
  return deger->get<bool>();
}

// A whole number that fits a signed 64-bit integer, as Swift's `as? Int` accepts it.
std::optional<std::int64_t> tamsayiAlan(const nlohmann::json& govde, const char* anahtar) {
  const auto* deger = uye(govde, anahtar);
  if (deger == nullptr) return std::nullopt;
  if (deger->is_number_unsigned()) {
    const auto buyuk = deger->get<std::uint64_t>();
    if (buyuk > static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max())) {
      return std::nullopt;
    }
    return static_cast<std::int64_t>(buyuk);
  }
  if (deger->is_number_integer()) return deger->get<std::int64_t>();
  return std::nullopt;
}

namespace {

constexpr std::string_view YEDEK_KACIS = "\\ufffd";

// The UTF-16 unit of a "\uXXXX" escape at `i`, or -1.
int kacisBirimi(std::string_view metin, std::size_t i) {
  if (i + 6 > metin.size() || metin[i] != '\\' || metin[i + 1] != 'u') return -1;
  int deger = 0;
  for (std::size_t j = i + 2; j < i + 6; ++j) {
    const char c = metin[j];
    int basamak = -1;
    if (c >= '0' && c <= '9') basamak = c - '0';
    if (c >= 'a' && c <= 'f') basamak = c - 'a' + 10;
    if (c >= 'A' && c <= 'F') basamak = c - 'A' + 10;
    if (basamak < 0) return -1;
    deger = deger * 16 + basamak;
  }
  return deger;
}

bool yuksekVekil(int birim) { return birim >= 0xD800 && birim <= 0xDBFF; }
bool dusukVekil(int birim) { return birim >= 0xDC00 && birim <= 0xDFFF; }

}  // namespace

std::string vekilleriOnar(std::string_view metin) {
  std::string sonuc;
  sonuc.reserve(metin.size());
  std::size_t i = 0;
  while (i < metin.size()) {
    if (metin[i] == '\\') {
      const int birim = kacisBirimi(metin, i);
      if (yuksekVekil(birim) && dusukVekil(kacisBirimi(metin, i + 6))) {
        sonuc.append(metin.substr(i, 12));
        i += 12;
      } else if (yuksekVekil(birim) || dusukVekil(birim)) {
        sonuc.append(YEDEK_KACIS);
        i += 6;
      } else {
        // Any other escape, "\\" included, passes whole so its second character is
        // never read as the start of another escape.
        const std::size_t uzunluk = i + 1 < metin.size() ? 2 : 1;
        sonuc.append(metin.substr(i, uzunluk));
        i += uzunluk;
      }
      continue;
    }
    sonuc.push_back(metin[i]);
    ++i;
  }
  // An escape is plain ASCII, never part of a longer UTF-8 sequence: the bytes can be
  // mended after it.
  return gecerliUtf8(sonuc);
}

nlohmann::json govdeCoz(std::string_view metin) {
  // JSON text never holds a raw NUL; the parser would take one for the end of the text.
  if (metin.find('\0') != std::string_view::npos) return nlohmann::json::value_t::discarded;
  return nlohmann::json::parse(vekilleriOnar(metin), nullptr, false);
}

}  // namespace nevo
