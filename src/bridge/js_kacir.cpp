#include "bridge/js_kacir.hpp"

#include <array>
#include <utility>

namespace nevo {
namespace {

void degistir(std::string& metin, std::string_view eski, std::string_view yeni) {
  std::string sonuc;
  sonuc.reserve(metin.size());
  std::size_t bas = 0;
  for (auto konum = metin.find(eski); konum != std::string::npos;
       konum = metin.find(eski, bas)) {
    sonuc.append(metin, bas, konum - bas).append(yeni);
    bas = konum + eski.size();
  }
  sonuc.append(metin, bas);
  metin = std::move(sonuc);
}

}  // namespace

std::string jsKacir(std::string_view metin) {
  static constexpr std::array<std::pair<std::string_view, std::string_view>, 6> ADIMLAR{{
      {"\\", "\\\\"},
      {"'", "\\'"},
      {"\n", "\\n"},
      {"\r", "\\r"},
      {"\u2028", "\\u2028"},
      {"\u2029", "\\u2029"},
  }};
  std::string sonuc(metin);
  for (const auto& [eski, yeni] : ADIMLAR) degistir(sonuc, eski, yeni);
  return sonuc;
}

std::string sayfaCagrisi(std::string_view islev, std::string_view argumanlar) {
  std::string betik = "window.";
  betik.append(islev).append(" && window.").append(islev).append("(");
  return betik.append(argumanlar).append(")");
}

std::string metinArgumani(std::string_view metin) {
  std::string arguman = "'";
  arguman.append(jsKacir(metin)).push_back('\'');
  return arguman;
}

}  // namespace nevo
