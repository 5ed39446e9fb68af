// Part 2.1: the page message handler, a pure dispatcher.
#include <nlohmann/json.hpp>

#include "app/uygulama.hpp"
#include "bridge/govde.hpp"
#include "temel/adres.hpp"

namespace nevo {
namespace {

std::string kucukHarf(std::string metin) {
  for (auto& harf : metin) {
    if (harf >= 'A' && harf <= 'Z') harf = static_cast<char>(harf - 'A' + 'a');
  }
  return metin;
}

std::optional<std::string> hostu(const std::optional<std::string>& adres) {
  if (!adres) return std::nullopt;
  auto cozulen = adresCoz(*adres);
  if (!cozulen || !cozulen->host) return std::nullopt;
  return kucukHarf(*cozulen->host);
}

}  // namespace

void Uygulama::userContentController(std::string_view govde) {
  // JSON text never holds a raw NUL; the parser would take one for the end of the text.
  if (!kendiSayfasinda() || govde.find('\0') != std::string_view::npos) return;
  auto cozulen = nlohmann::json::parse(govde, nullptr, false);
  if (cozulen.is_discarded()) return;
  sayfaMesaji(cozulen);
}

// Only the application's own pages may talk to the shell: the view's host must be ADRES's.
bool Uygulama::kendiSayfasinda() const {
  const auto beklenen = hostu(ayar_.adres);
  if (!beklenen) return true;
  return web && hostu(web->adres()) == beklenen;
}

void Uygulama::sayfaMesaji(const nlohmann::json& govde) {
  if (!govde.is_object() || govde.empty()) return;
  const auto tur = metinAlani(govde, "tur");
  if (!tur) return;
  auto metin = [&govde](const char* anahtar, const char* varsayilan) {
    return metinAlani(govde, anahtar).value_or(varsayilan);
  };
  if (*tur == "tarayicida-ac") {
    tarayicidaAc(govde);
  } else if (*tur == "bildirim-durum") {
    bildirimDurumu();
  } else if (*tur == "bildirim-izin-iste") {
    bildirimIzniIste();
  } else if (*tur == "bildirim-ayarlari") {
    portlar_.bildirim.ayarlariAc();
  } else if (*tur == "dosya-kaydet") {
    dosyaKaydet(metin("ad", "nevo.json"), metin("icerik", ""));
  } else if (*tur == "bildirim") {
    bildirimGonder(metin("baslik", "Nevo"), metin("govde", ""));
  } else if (*tur == "masaustu") {
    portlar_.masaustu.mesaj(govde);
  } else if (*tur == "masaustu-is") {
    portlar_.masaustu.isMesaji(govde);
  } else if (*tur == "ajan-eslestir") {
    ajanEslestir(metin("kod", ""));
  }
}

// Only "https", compared exactly: the page may hand only secure addresses to the browser.
void Uygulama::tarayicidaAc(const nlohmann::json& govde) {
  const auto url = metinAlani(govde, "url");
  if (!url) return;
  const auto cozulen = adresCoz(*url);
  if (cozulen && cozulen->sema == "https") portlar_.sistem.disaridaAc(*url);
}

// The pairing of Part 3.3, where the platform has it.
void Uygulama::ajanEslestir(const std::string& kod) {
  if (portlar_.eslestirme) portlar_.eslestirme->eslestir(kod);
}

}  // namespace nevo
