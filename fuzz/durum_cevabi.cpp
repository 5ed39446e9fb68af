// Every page call, run in a real JavaScript engine: a shortcut name read from the
// preferences reaches the page exactly in the status reply; the quoted calls deliver every
// text as it was, except a link value holding a line break, whose script is refused whole;
// the pairing result is the plain concatenation, and the engine survives whatever it holds.
#include <glib.h>
#include <jsc/jsc.h>

#include <cstddef>
#include <cstdint>
#include <nlohmann/json.hpp>
#include <string>

#include "bridge/sayfa_cagrilari.hpp"
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

// What a script evaluates to, as JSON; discarded when the engine refused the script.
nlohmann::json sonuc(const std::string& betik) {
  jsc_context_clear_exception(motor());
  JSCValue* deger = jsc_context_evaluate(motor(), betik.data(), static_cast<gssize>(betik.size()));
  const bool reddedildi = jsc_context_get_exception(motor()) != nullptr;
  char* json = reddedildi ? nullptr : jsc_value_to_json(deger, 0);
  nlohmann::json cozulen(nlohmann::json::value_t::discarded);
  if (json) cozulen = nlohmann::json::parse(json, nullptr, false);
  g_free(json);
  g_object_unref(deger);
  return cozulen;
}

std::string metinSonucu(const std::string& betik) {
  const auto deger = sonuc(betik);
  denetle(deger.is_string());
  return deger.get<std::string>();
}

// A page whose functions return the arguments they were called with.
const char* const SAYFA =
    "var window = {}; ['nevoMasaustuCevap', 'nevoKomut', 'nevoHizliMesaj', "
    "'nevoBildirimDurumu', 'nevoEslestirmeSonucu', 'nevoBaglantiDonusu', 'nevoOturumKur']"
    ".forEach(function (ad) { window[ad] = function () {"
    " return Array.prototype.slice.call(arguments); }; });";

nlohmann::json sayfada(const std::string& cagri) { return sonuc(SAYFA + cagri); }

bool satirSonuVar(const std::string& s) { return s.find_first_of("\r\n") != std::string::npos; }

void cagrilariDenetle(const std::string& a, const std::string& b) {
  using nlohmann::json;
  denetle(sayfada(nevo::nevoMasaustuCevap(-1, a)) == json::array({-1, a}));
  denetle(sayfada(nevo::nevoKomut(a)) == json::array({a}));
  denetle(sayfada(nevo::nevoHizliMesaj(a)) == json::array({a}));
  denetle(sayfada(nevo::nevoBildirimDurumu(a)) == json::array({a}));
  for (const auto& baglanti : {nevo::nevoBaglantiDonusu(a, b), nevo::nevoOturumKur(a, b)}) {
    const auto alinan = sayfada(baglanti);
    if (satirSonuVar(a) || satirSonuVar(b)) {
      denetle(alinan.is_discarded());
    } else {
      denetle(alinan == json::array({a, b}));
    }
  }
  const std::string eslestirme = nevo::nevoEslestirmeSonucu(true, a);
  denetle(eslestirme == "window.nevoEslestirmeSonucu && window.nevoEslestirmeSonucu(true, " +
                            nevo::jsKacir(a) + ")");
  sayfada(eslestirme);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* veri, std::size_t boyut) {
  const std::string ad(reinterpret_cast<const char*>(veri), boyut);
  const bool utf8 = g_utf8_validate(ad.data(), static_cast<gssize>(ad.size()), nullptr);

  const std::string ilk = ad.substr(0, boyut / 2), son = ad.substr(boyut / 2);
  if (g_utf8_validate_len(ilk.data(), ilk.size(), nullptr) &&
      g_utf8_validate_len(son.data(), son.size(), nullptr)) {
    cagrilariDenetle(ilk, son);
  }

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
