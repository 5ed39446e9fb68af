#include "bridge/js_kacir.hpp"

namespace nevo {

// The six replacements in one pass: no step matches what an earlier step wrote, so
// replacing each character once gives the same text.
std::string jsKacir(std::string_view metin) {
  std::string sonuc;
  sonuc.reserve(metin.size() + metin.size() / 8);
  for (std::size_t i = 0; i < metin.size(); ++i) {
    const char c = metin[i];
    if (c == '\\') {
      sonuc += "\\\\";
    } else if (c == '\'') {
      sonuc += "\\'";
    } else if (c == '\n') {
      sonuc += "\\n";
    } else if (c == '\r') {
      sonuc += "\\r";
    } else if (metin.substr(i, 3) == "\u2028" || metin.substr(i, 3) == "\u2029") {
      sonuc += metin[i + 2] == '\xA8' ? "\\u2028" : "\\u2029";
      i += 2;
    } else {
      sonuc += c;
    }
  }
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
