#include "desktop/hizli_panel.hpp"

#include <array>
#include <string_view>

namespace nevo {
namespace {

// White space and line breaks as Unicode counts them, in UTF-8.
constexpr std::array<std::string_view, 25> BOSLUKLAR{
    " ",      "\t",     "\n",     "\v",     "\f",     "\r",     "\u0085", "\u00A0", "\u1680",
    "\u2000", "\u2001", "\u2002", "\u2003", "\u2004", "\u2005", "\u2006", "\u2007", "\u2008",
    "\u2009", "\u200A", "\u2028", "\u2029", "\u202F", "\u205F", "\u3000",
};

std::size_t bastakiBosluk(std::string_view metin) {
  for (const auto b : BOSLUKLAR) {
    if (metin.starts_with(b)) return b.size();
  }
  return 0;
}

std::size_t sondakiBosluk(std::string_view metin) {
  for (const auto b : BOSLUKLAR) {
    if (metin.ends_with(b)) return b.size();
  }
  return 0;
}

}  // namespace

std::string kirp(const std::string& metin) {
  std::string_view kalan(metin);
  while (const auto n = bastakiBosluk(kalan)) kalan.remove_prefix(n);
  while (const auto n = sondakiBosluk(kalan)) kalan.remove_suffix(n);
  return std::string(kalan);
}

HizliPencere::HizliPencere(HizliGorunum& gorunum) : gorunum_(gorunum) {
  gorunum_.gonderildiAyarla([this] { gonderildi(); });
}

void HizliPencere::ac() {
  gorunum_.metinYaz("");
  gorunum_.goster();
}

void HizliPencere::acKapat() {
  if (gorunur()) {
    gizle();
  } else {
    ac();
  }
}

void HizliPencere::gonderildi() {
  const auto metin = kirp(gorunum_.metin());
  if (metin.empty()) return;
  gorunum_.metinYaz("");
  gorunum_.gizle();
  if (gonder_) gonder_(metin);
}

}  // namespace nevo
