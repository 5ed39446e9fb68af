#include "desktop/otomatik_baslatma.hpp"

namespace nevo {
namespace {

// One argument of the Exec key: double-quoted, with ", `, $ and \ escaped; % doubled.
std::string execArgumani(std::string_view yol) {
  std::string sonuc = "\"";
  for (char c : yol) {
    if (c == '"' || c == '`' || c == '$' || c == '\\') sonuc += '\\';
    if (c == '%') sonuc += '%';
    sonuc += c;
  }
  return sonuc + "\"";
}

// A key file string value: backslash, line breaks and tabs escaped.
std::string anahtarDegeri(std::string_view metin) {
  std::string sonuc;
  for (char c : metin) {
    switch (c) {
      case '\\':
        sonuc += "\\\\";
        break;
      case '\n':
        sonuc += "\\n";
        break;
      case '\r':
        sonuc += "\\r";
        break;
      case '\t':
        sonuc += "\\t";
        break;
      default:
        sonuc += c;
    }
  }
  return sonuc;
}

}  // namespace

std::string otomatikBaslatmaGirdisi(std::string_view calistirilabilir) {
  return "[Desktop Entry]\n"
         "Type=Application\n"
         "Name=Nevo\n"
         "Exec=" +
         anahtarDegeri(execArgumani(calistirilabilir)) +
         "\n"
         "Terminal=false\n"
         "X-GNOME-Autostart-enabled=true\n";
}

}  // namespace nevo
