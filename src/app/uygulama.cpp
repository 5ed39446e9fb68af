#include "app/uygulama.hpp"

#include <map>
#include <utility>

#include "app/cevrimdisi_sayfa.hpp"
#include "app/gezinme.hpp"
#include "app/kip.hpp"
#include "app/stil_betigi.hpp"
#include "temel/adres.hpp"

namespace nevo {
namespace {
constexpr const char* BOS_SAYFA = "about:blank";
}

std::shared_ptr<Uygulama> Uygulama::olustur(UygulamaPortlari portlar, UygulamaAyari ayar) {
  return std::shared_ptr<Uygulama>(new Uygulama(portlar, std::move(ayar)));
}

Uygulama::Uygulama(UygulamaPortlari portlar, UygulamaAyari ayar)
    : portlar_(portlar), ayar_(std::move(ayar)) {}

// The launch sequence. The agent (Part 3.1) and links (Part 3.4) take their places in it
// as their Parts land.
void Uygulama::applicationDidFinishLaunching() {
  menuKur();
  pencereKur();
  masaustuKur();
  if (portlar_.sistem.paketKimligi()) {
    portlar_.bildirim.temsilciOl([zayif = weak_from_this()] {
      if (auto uygulama = zayif.lock()) uygulama->bildirimTiklandi();
    });
  }
}

void Uygulama::applicationWillTerminate() {
  ajaniDurdur();
  portlar_.masaustu.kapanirken();
}

void Uygulama::applicationShouldHandleReopen(bool gorunurPencereVar) {
  if (!gorunurPencereVar && pencere) pencere->oneGetir();
}

void Uygulama::kipiTazele() {
  const bool giris = girisKipiMi(adresinYolu(webGerekli().adres()));
  if (girisKipi == giris) return;
  girisKipi = giris;
  if (!pencere) portlar_.sistem.olumcul("ana pencere yok");
  pencere->boyutlanabilir(!giris);
  pencere->tamEkranIzni(!giris);
  pencere->icerikBoyutu(giris ? GIRIS_OLCU : ANA_OLCU);
  pencere->ortala();
}

void Uygulama::pencereyiOneGetir() {
  portlar_.sistem.etkinlestir();
  if (pencere) pencere->oneGetir();
}

void Uygulama::menuKur() { portlar_.menuKurucu.kur(anaMenu()); }

void Uygulama::menuEylemi(const std::string& secilen) {
  static const std::map<std::string, std::string> DUZENLEME{
      {eylem::GERI_AL, "Undo"}, {eylem::YINELE, "Redo"},   {eylem::KES, "Cut"},
      {eylem::KOPYALA, "Copy"}, {eylem::YAPISTIR, "Paste"}, {eylem::TUMUNU_SEC, "SelectAll"}};
  auto& sistem = portlar_.sistem;
  if (auto komut = DUZENLEME.find(secilen); komut != DUZENLEME.end()) {
    if (web) web->duzenle(komut->second);
  } else if (secilen == eylem::HAKKINDA) {
    sistem.hakkindaGoster();
  } else if (secilen == eylem::GIZLE) {
    sistem.gizle();
  } else if (secilen == eylem::DIGERLERINI_GIZLE) {
    sistem.digerleriniGizle();
  } else if (secilen == eylem::CIK) {
    sistem.sonlandir();
  } else if (secilen == eylem::YENIDEN_YUKLE) {
    yenidenYukle();
  } else if (pencere && secilen == eylem::TAM_EKRAN) {
    pencere->tamEkranDegistir();
  } else if (pencere && secilen == eylem::KUCULT) {
    pencere->kucult();
  } else if (pencere && secilen == eylem::KAPAT) {
    pencere->kapat();
  }
}

PencereTasarimi Uygulama::pencereTasarimi() const {
  return {GIRIS_OLCU,
          EN_KUCUK_OLCU,
          SERIT,
          "Nevo",
          ayar_.metinler.kullaniciAraciAdi,
          stilBetigi(),
          {Katman::Arka, Katman::Web, Katman::Serit, Katman::Perde}};
}

void Uygulama::pencereKur() {
  if (!adresCoz(ayar_.adres)) {
    portlar_.sistem.olumcul("NEVO_ADRES bir adres olarak çözülemedi: \"" + ayar_.adres + "\"");
  }
  auto parcalar = portlar_.pencereKurucu.kur(pencereTasarimi(), *this);
  pencere = std::move(parcalar.pencere);
  web = std::move(parcalar.web);
  perde = std::move(parcalar.perde);
  serit_ = std::make_unique<Serit>(*pencere, portlar_.sistem, ayar_.metinler);
  web->adresYukle(ayar_.adres);
  pencere->ortala();
  pencere->oneGetir();
  portlar_.sistem.etkinlestir();
}

void Uygulama::ajaniDurdur() {
  if (ajanSureci) ajanSureci->sonlandir();
  ajanSureci.reset();
}

void Uygulama::cizildiMi(int deneme) {
  if (deneme > SON_DENEME) {
    perdeyiKaldir();
    return;
  }
  webGerekli().betikSor(CIZIM_SINAMASI,
                        [zayif = weak_from_this(), deneme](std::optional<bool> cevap) {
                          auto uygulama = zayif.lock();
                          if (!uygulama) return;
                          if (cevap == true) {
                            uygulama->perdeyiKaldir();
                            return;
                          }
                          uygulama->portlar_.kuyruk.sonra(DENEME_ARALIGI, [uygulama, deneme] {
                            uygulama->cizildiMi(deneme + 1);
                          });
                        });
}

void Uygulama::perdeyiKaldir() {
  if (!perde || !perde->bagli() || perdeSoniyor_) return;
  perdeSoniyor_ = true;
  perde->sondur(PERDE_SOLMA, [zayif = weak_from_this()] {
    if (auto uygulama = zayif.lock()) uygulama->perde->kaldir();
  });
}

void Uygulama::hataGoster(std::optional<std::string> basarisizAdres) {
  if (basarisizAdres && !basarisizAdres->empty()) basarisizAdres_ = std::move(basarisizAdres);
  webGerekli().htmlYukle(cevrimdisiSayfa(ayar_.metinler));
}

void Uygulama::yenidenYukle() {
  if (basarisizAdres_) {
    webGerekli().adresYukle(*basarisizAdres_);
  } else {
    webGerekli().yenile();
  }
}

WebGorunum& Uygulama::webGerekli() {
  if (!web) portlar_.sistem.olumcul("web görünümü yok");
  return *web;
}

void Uygulama::adresDegisti() { kipiTazele(); }

void Uygulama::sayfaIslendi() {
  portlar_.masaustu.uyku.temizle();
  if (webGerekli().adres() != BOS_SAYFA) basarisizAdres_.reset();
}

void Uygulama::yuklemeBitti() { cizildiMi(0); }

void Uygulama::yuklemeBasarisiz(std::optional<std::string> adres) {
  hataGoster(std::move(adres));
}

bool Uygulama::gezinmeIzni(const std::optional<std::string>& adres) {
  const bool kalir = gorunumdeKalir(adres, ayar_.adres, ayar_.kimlikSoneki);
  if (!kalir) portlar_.sistem.disaridaAc(*adres);
  return kalir;
}

void Uygulama::yeniPencereIstendi(const std::optional<std::string>& adres) {
  if (adres && !adres->empty()) portlar_.sistem.disaridaAc(*adres);
}

bool Uygulama::seritBasildi(int tiklamaSayisi) {
  return serit_ && serit_->basildi(tiklamaSayisi) == Serit::Sonuc::Surukle;
}

void Uygulama::buyutDugmesi() {
  if (serit_) serit_->buyutKucult();
}

}  // namespace nevo
