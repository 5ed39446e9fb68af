#include "bridge/sayfa_cagrilari.hpp"

namespace nevo {
namespace {

std::string cagri(std::string_view islev, std::string_view argumanlar) {
  std::string betik = "window.";
  betik.append(islev).append(" && window.").append(islev).append("(");
  return betik.append(argumanlar).append(")");
}

std::string tirnakli(std::string_view kacirilmis) {
  std::string arguman = "'";
  arguman.append(kacirilmis).push_back('\'');
  return arguman;
}

// A text argument: the text between single quotes, escaped with jsKacir.
std::string metinArgumani(std::string_view metin) { return tirnakli(jsKacir(metin)); }

// Backslashes doubled, then single quotes behind a backslash; nothing else.
std::string tirnakKacir(std::string_view metin) {
  std::string sonuc;
  sonuc.reserve(metin.size());
  for (const char c : metin) {
    if (c == '\\' || c == '\'') sonuc.push_back('\\');
    sonuc.push_back(c);
  }
  return sonuc;
}

std::string baglantiCagrisi(std::string_view islev, std::string_view bir, std::string_view iki) {
  return cagri(islev, tirnakli(tirnakKacir(bir)) + "," + tirnakli(tirnakKacir(iki)));
}

}  // namespace

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

std::string nevoMasaustuCevap(std::int64_t istek, std::string_view durum) {
  return cagri("nevoMasaustuCevap", std::to_string(istek) + ", " + metinArgumani(durum));
}

std::string nevoKomut(std::string_view komut) { return cagri("nevoKomut", metinArgumani(komut)); }

std::string nevoHizliMesaj(std::string_view metin) {
  return cagri("nevoHizliMesaj", metinArgumani(metin));
}

std::string nevoBildirimDurumu(std::string_view kelime) {
  return cagri("nevoBildirimDurumu", metinArgumani(kelime));
}

std::string nevoEslestirmeSonucu(bool ok, std::string_view mesaj) {
  return cagri("nevoEslestirmeSonucu", std::string(ok ? "true" : "false") + ", " + jsKacir(mesaj));
}

std::string nevoBaglantiDonusu(std::string_view kod, std::string_view baglanti) {
  return baglantiCagrisi("nevoBaglantiDonusu", kod, baglanti);
}

std::string nevoOturumKur(std::string_view erisim, std::string_view yenileme) {
  return baglantiCagrisi("nevoOturumKur", erisim, yenileme);
}

}  // namespace nevo
