#include "agent/ajan_kaydi.hpp"

#include <charconv>
#include <vector>

namespace nevo {
namespace {

std::vector<std::string_view> satirlar(std::string_view metin) {
  std::vector<std::string_view> sonuc;
  while (!metin.empty()) {
    const auto son = metin.find('\n');
    sonuc.push_back(metin.substr(0, son));
    if (son == std::string_view::npos) break;
    metin.remove_prefix(son + 1);
  }
  return sonuc;
}

std::optional<long> numaraOku(std::string_view metin) {
  long numara = 0;
  const auto [son, hata] = std::from_chars(metin.data(), metin.data() + metin.size(), numara);
  if (hata != std::errc() || son != metin.data() + metin.size() || numara <= 0) {
    return std::nullopt;
  }
  return numara;
}

}  // namespace

std::string kayitMetni(const AjanKaydi& kayit) {
  return std::to_string(kayit.numara) + "\n" + kayit.kimlik.baslangic + "\n" +
         kayit.kimlik.program + "\n";
}

std::optional<AjanKaydi> kayitOku(std::string_view metin) {
  const auto s = satirlar(metin);
  if (s.size() != 3) return std::nullopt;
  const auto numara = numaraOku(s[0]);
  if (!numara || s[1].empty() || s[2].empty()) return std::nullopt;
  return AjanKaydi{*numara, {std::string(s[1]), std::string(s[2])}};
}

bool halaAyniSurec(const AjanKaydi& kayit, const std::optional<SurecKimligi>& simdiki) {
  return simdiki && *simdiki == kayit.kimlik;
}

}  // namespace nevo
