// Addresses and the navigation decision: the first line is the application's address,
// the rest the requested one. Only web and mail addresses may ever leave the shell.
#include "app/pencere/gezinme.hpp"

#include <cstddef>
#include <cstdint>
#include <string>

#include "temel/adres.hpp"

namespace {

void denetle(bool kosul) {
  if (!kosul) __builtin_trap();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* veri, std::size_t boyut) {
  const std::string metin(reinterpret_cast<const char*>(veri), boyut);
  const auto satir = metin.find('\n');
  const std::string uygulama = satir == std::string::npos ? metin : metin.substr(0, satir);
  const std::string istek = satir == std::string::npos ? metin : metin.substr(satir + 1);
  nevo::adresCoz(metin);
  nevo::yuzdeCoz(metin);
  nevo::webAdresi(uygulama);
  for (const std::optional<bool> ana :
       {std::optional<bool>(true), std::optional<bool>(false), std::optional<bool>()}) {
    for (const bool tik : {true, false}) {
      const auto karar = nevo::gezinmeKarari(istek, uygulama, "supabase.co", {ana, tik});
      if (karar != nevo::GezinmeKarari::DisaridaAc) continue;
      const auto adres = nevo::adresCoz(istek);
      denetle(adres &&
              (adres->sema == "http" || adres->sema == "https" || adres->sema == "mailto"));
      denetle(ana.value_or(tik));
    }
  }
  return 0;
}
