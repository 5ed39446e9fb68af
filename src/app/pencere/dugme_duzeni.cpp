#include "app/pencere/dugme_duzeni.hpp"

#include <algorithm>
#include <optional>
#include <string>

namespace nevo {
namespace {

std::optional<Dugme> dugmeAdi(std::string_view ad) {
  if (ad == "menu" || ad == "appmenu") return Dugme::Menu;
  if (ad == "minimize") return Dugme::Kucult;
  if (ad == "maximize") return Dugme::Buyut;
  if (ad == "close") return Dugme::Kapat;
  return std::nullopt;
}

bool varMi(const DugmeDuzeni& d, Dugme dugme) {
  return std::ranges::find(d.sol, dugme) != d.sol.end() ||
         std::ranges::find(d.sag, dugme) != d.sag.end();
}

void oku(std::string_view parca, std::vector<Dugme>& hedef, DugmeDuzeni& d) {
  while (!parca.empty()) {
    const auto virgul = parca.find(',');
    const auto dugme = dugmeAdi(parca.substr(0, virgul));
    if (dugme && !varMi(d, *dugme)) hedef.push_back(*dugme);
    if (virgul == std::string_view::npos) break;
    parca.remove_prefix(virgul + 1);
  }
}

}  // namespace

DugmeDuzeni dugmeDuzeni(std::string_view duzen) {
  DugmeDuzeni d;
  const auto iki = duzen.find(':');
  oku(duzen.substr(0, iki), d.sol, d);
  if (iki != std::string_view::npos) oku(duzen.substr(iki + 1), d.sag, d);
  if (!varMi(d, Dugme::Menu)) d.sol.insert(d.sol.begin(), Dugme::Menu);
  return d;
}

double kumeGenisligi(const std::vector<Dugme>& dugmeler) {
  if (dugmeler.empty()) return 0;
  const auto n = static_cast<double>(dugmeler.size());
  return 2 * KUME_KENARI + n * DUGME_CAPI + (n - 1) * DUGME_ARALIGI;
}

}  // namespace nevo
