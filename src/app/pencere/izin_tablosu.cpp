#include "app/pencere/izin_tablosu.hpp"

#include <algorithm>
#include <array>

#include "temel/adres.hpp"

namespace nevo {
namespace {

constexpr auto UST = IzinSahibi::UygulamaninUstSayfasi;
constexpr auto HIC = IzinSahibi::Hicbiri;

constexpr std::array<IzinSatiri, 11> TABLO{{
    {Izin::Mikrofon, "microphone", UST,
     "the application takes dictation and voice; an embedded page never listens"},
    {Izin::Kamera, "camera", UST, "the application may show the user's camera; no embed may"},
    {Izin::EkranPaylasimi, "display-capture", UST,
     "the application shares a screen the user picks in the desktop's own picker"},
    {Izin::AygitAdlari, nullptr, HIC,
     "the engine names the devices to a page once it captures from one; no page lists them "
     "before"},
    {Izin::Konum, "geolocation", HIC, "the application has no use for the machine's position"},
    {Izin::FareKilidi, nullptr, HIC,
     "nothing in the application holds the pointer; a page that did could trap it"},
    {Izin::WebBildirimi, "notifications", HIC,
     "the application notifies through the shell's bridge, which the user controls"},
    {Izin::PanoOkuma, nullptr, HIC,
     "a page receives what the user pastes; no script reads the clipboard by itself"},
    {Izin::KorumaliMedya, nullptr, HIC, "the application plays no protected media"},
    {Izin::SiteVerisi, nullptr, HIC,
     "an embedded site gets no access to its own cookies inside the application"},
    {Izin::Diger, nullptr, HIC,
     "whatever else the engine asks (installing media plugins, …) is refused"},
}};

std::optional<std::string> hostu(const std::optional<std::string>& adres) {
  if (!adres) return std::nullopt;
  auto cozulen = adresCoz(*adres);
  if (!cozulen || !cozulen->host) return std::nullopt;
  return kucukHarfli(*cozulen->host);
}

bool uygulamaninUstSayfasi(const IzinKaynagi& kaynak, std::string_view uygulamaAdresi) {
  const auto beklenen = hostu(std::string(uygulamaAdresi));
  if (!kaynak.ustSayfa || !beklenen || hostu(kaynak.sayfaAdresi) != beklenen) return false;
  return !kaynak.host || kucukHarfli(*kaynak.host) == *beklenen;
}

bool sahibineVerilir(IzinSahibi sahibi, const IzinKaynagi& kaynak,
                     std::string_view uygulamaAdresi) {
  return sahibi == UST && uygulamaninUstSayfasi(kaynak, uygulamaAdresi);
}

}  // namespace

std::span<const IzinSatiri> izinTablosu() { return TABLO; }

bool izinVerilir(Izin izin, const IzinKaynagi& kaynak, std::string_view uygulamaAdresi) {
  const auto satir =
      std::find_if(TABLO.begin(), TABLO.end(), [izin](const auto& s) { return s.izin == izin; });
  return satir != TABLO.end() && sahibineVerilir(satir->sahibi, kaynak, uygulamaAdresi);
}

std::optional<IzinDurumu> sorguDurumu(std::string_view ad, const IzinKaynagi& kaynak,
                                      std::string_view uygulamaAdresi) {
  const auto satir = std::find_if(TABLO.begin(), TABLO.end(), [ad](const auto& s) {
    return s.sorguAdi != nullptr && ad == s.sorguAdi;
  });
  if (satir == TABLO.end()) return std::nullopt;
  return sahibineVerilir(satir->sahibi, kaynak, uygulamaAdresi) ? IzinDurumu::Verildi
                                                                : IzinDurumu::Reddedildi;
}

}  // namespace nevo
