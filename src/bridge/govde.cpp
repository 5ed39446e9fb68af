#include "bridge/govde.hpp"

#include <limits>

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
constexpr std::string_view YEDEK_BAYT = "\xEF\xBF\xBD";

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

// The length of the well-formed UTF-8 sequence at `i`, or 0.
std::size_t utf8Uzunlugu(std::string_view metin, std::size_t i) {
  const auto bayt = [&](std::size_t j) { return static_cast<unsigned char>(metin[j]); };
  const unsigned char ilk = bayt(i);
  if (ilk < 0x80) return 1;
  std::size_t uzunluk = 0;
  unsigned char alt = 0x80;
  unsigned char ust = 0xBF;
  if (ilk >= 0xC2 && ilk <= 0xDF) {
    uzunluk = 2;
  } else if (ilk >= 0xE0 && ilk <= 0xEF) {
    uzunluk = 3;
    if (ilk == 0xE0) alt = 0xA0;
    if (ilk == 0xED) ust = 0x9F;  // surrogates are not characters
  } else if (ilk >= 0xF0 && ilk <= 0xF4) {
    uzunluk = 4;
    if (ilk == 0xF0) alt = 0x90;
    if (ilk == 0xF4) ust = 0x8F;
  } else {
    return 0;
  }
  if (i + uzunluk > metin.size()) return 0;
  if (bayt(i + 1) < alt || bayt(i + 1) > ust) return 0;
  for (std::size_t j = i + 2; j < i + uzunluk; ++j) {
    if (bayt(j) < 0x80 || bayt(j) > 0xBF) return 0;
  }
  return uzunluk;
}

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
        // Any other escape, "\\\\" included, passes whole so its second character is
        // never read as the start of another escape.
        const std::size_t uzunluk = i + 1 < metin.size() ? 2 : 1;
        sonuc.append(metin.substr(i, uzunluk));
        i += uzunluk;
      }
      continue;
    }
    const std::size_t uzunluk = utf8Uzunlugu(metin, i);
    if (uzunluk == 0) {
      sonuc.append(YEDEK_BAYT);
      ++i;
    } else {
      sonuc.append(metin.substr(i, uzunluk));
      i += uzunluk;
    }
  }
  return sonuc;
}

nlohmann::json govdeCoz(std::string_view metin) {
  // JSON text never holds a raw NUL; the parser would take one for the end of the text.
  if (metin.find('\0') != std::string_view::npos) return nlohmann::json::value_t::discarded;
  return nlohmann::json::parse(vekilleriOnar(metin), nullptr, false);
}

}  // namespace nevo
