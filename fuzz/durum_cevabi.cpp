// The status reply and the page-call escaping, run in a real JavaScript engine: a shortcut
// name read from the preferences reaches the page exactly, and an escaped text reads back
// as itself.
#include <glib.h>
#include <jsc/jsc.h>

#include <cstddef>
#include <cstdint>
#include <nlohmann/json.hpp>
#include <string>

#include "bridge/js_kacir.hpp"
#include "fakes/uygulama_duzenegi.hpp"

namespace {

void denetle(bool kosul) {
  if (!kosul) __builtin_trap();
}

// One engine for the whole run: making a fresh one for every input would cost far more
// than the input itself.
JSCContext* motor() {
  static JSCContext* const baglam = jsc_context_new();
  return baglam;
}

// The string a script evaluates to.
std::string metinSonucu(const std::string& betik) {
  JSCValue* sonuc = jsc_context_evaluate(motor(), betik.data(), static_cast<gssize>(betik.size()));
  denetle(jsc_context_get_exception(motor()) == nullptr && jsc_value_is_string(sonuc));
  char* json = jsc_value_to_json(sonuc, 0);
  const auto deger = nlohmann::json::parse(json, nullptr, false);
  g_free(json);
  g_object_unref(sonuc);
  denetle(deger.is_string());
  return deger.get<std::string>();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* veri, std::size_t boyut) {
  const std::string ad(reinterpret_cast<const char*>(veri), boyut);
  const bool utf8 = g_utf8_validate(ad.data(), static_cast<gssize>(ad.size()), nullptr);

  if (utf8) denetle(metinSonucu(nevo::metinArgumani(ad)) == ad);

  nevo::sahte::UygulamaDuzenegi d;
  d.depo.tamsayiYaz("nevo.kisayol.kod", 49);
  d.depo.tamsayiYaz("nevo.kisayol.mod", 256);
  d.depo.metinYaz("nevo.kisayol.ad", ad);
  d.paketliAc();
  d.mesaj(R"({"tur":"masaustu","istek":7,"eylem":"durum"})");
  d.kuyruk.calistir();
  denetle(d.web().betikler.size() == 1);
  const std::string sayfa =
      "window = {nevoMasaustuCevap: function (istek, durum) {"
      "  var d = JSON.parse(durum); return istek === 7 ? (d.kisayol === undefined ? '' :"
      "  d.kisayol) : null; }};";
  if (utf8) denetle(metinSonucu(sayfa + d.web().betikler[0]) == ad);
  return 0;
}
