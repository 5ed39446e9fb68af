#include "app/uygulama.hpp"

#include <utility>

#include "app/indirme/indirme_metinleri.hpp"
#include "app/kip.hpp"
#include "app/pencere/cevrimdisi_sayfa.hpp"
#include "app/pencere/gezinme.hpp"
#include "app/pencere/stil_betigi.hpp"
#include "app/pencere/tus_komutlari.hpp"
#include "temel/acilis_izi.hpp"
#include "temel/adres.hpp"
#include "temel/karakterler.hpp"

namespace nevo {
namespace {
constexpr const char* BOS_SAYFA = "about:blank";

// The bridge pairs through the local agent unless it was given a pairing of its own.
KopruPortlari eslestirmeyle(KopruPortlari portlar, Eslestirme& eslestirme) {
  if (portlar.eslestirme == nullptr) portlar.eslestirme = &eslestirme;
  return portlar;
}
}  // namespace

std::shared_ptr<Uygulama> Uygulama::olustur(UygulamaPortlari portlar, UygulamaAyari ayar) {
  return std::shared_ptr<Uygulama>(new Uygulama(portlar, std::move(ayar)));
}

Uygulama::Uygulama(UygulamaPortlari portlar, UygulamaAyari ayar)
    : portlar_(portlar),
      ayar_(std::move(ayar)),
      ajan_(ayar_.ajan, portlar.kuyruk, portlar.surecler),
      cokmeler_(portlar.kuyruk),
      indirmeler_(Indirmeler::olustur({portlar.kuyruk, portlar.kopru.kayitPaneli,
                                       portlar.kopru.bildirim, portlar.sistem, *this},
                                      ayar_.adres)),
      yakinlastirma_(portlar.tercihler ? std::optional<Yakinlastirma>(*portlar.tercihler)
                                       : std::nullopt),
      kopru_(Kopru::olustur(eslestirmeyle(portlar.kopru, ajan_), ayar_.adres, *this)) {}

// The launch sequence: the agent before any window, menu, window, desktop bridge; the
// notification service's clicks (and the downloads' button) only where the application has
// a bundle identifier. The platform takes links from here on.
void Uygulama::applicationDidFinishLaunching() {
  ajaniBaslat();
  acilisIsareti("ajan");
  menuKur();
  acilisIsareti("menu");
  pencereKur();
  masaustuKur();
  if (portlar_.sistem.paketKimligi()) {
    kopru_->bildirimTemsilcisiOl({indirme_metni::KLASORDE_GOSTER});
  }
  acilisIsareti("masaustu");
}

void Uygulama::applicationWillTerminate() {
  ajaniDurdur();
  indirmeler_->kapanirken();
  kopru_->kapanirken();
}

void Uygulama::applicationShouldHandleReopen(bool gorunurPencereVar) {
  if (!gorunurPencereVar && pencere_) pencere_->oneGetir();
}

// While the offline page shows, the mode is that of the address whose load failed (and
// stays as it is when no address failed).
void Uygulama::kipiTazele() {
  auto adres = webGerekli().adres();
  if (adres == BOS_SAYFA) {
    if (!basarisizAdres_) return;
    adres = basarisizAdres_;
  }
  const bool giris = girisKipiMi(adresinYolu(adres));
  if (girisKipi_ == giris) return;
  girisKipi_ = giris;
  if (!pencere_) portlar_.sistem.olumcul("ana pencere yok");
  pencere_->boyutlanabilir(!giris);
  pencere_->tamEkranIzni(!giris);
  pencere_->icerikBoyutu(giris ? GIRIS_OLCU : ANA_OLCU);
  pencere_->ortala();
}

void Uygulama::masaustuKur() { kopru_->masaustuKur(); }

void Uygulama::userContentController(std::string_view govde, const MesajKaynagi& kaynak) {
  kopru_->mesaj(govde, kaynak);
}

// Only those the bridge listens to may open the dialog.
void Uygulama::yazdirmaIstendi(const MesajKaynagi& kaynak) {
  if (web_ && kopru_->kendiSayfasinda(kaynak)) web_->yazdir();
}

std::optional<std::string> Uygulama::sayfaAdresi() const {
  if (!web_) return std::nullopt;
  return web_->adres();
}

void Uygulama::sayfadaCalistir(const std::string& betik) {
  if (web_) web_->betikCalistir(betik);
}

void Uygulama::pencereyiOneGetir() {
  portlar_.sistem.etkinlestir();
  if (pencere_) pencere_->oneGetir();
}

void Uygulama::menuKur() { portlar_.menuKurucu.kur(anaMenu(ayar_.metinler)); }

// An editing entry runs its command in the web view; full screen is offered in the main
// mode only, never on the sign-in pages.
void Uygulama::menuEylemi(const std::string& secilen) {
  const auto menu = anaMenu(ayar_.metinler);
  const MenuOgesi* oge = eylemOgesi(menu, secilen);
  if (oge == nullptr) return;
  auto& sistem = portlar_.sistem;
  if (!oge->duzenlemeKomutu.empty()) {
    if (web_) web_->duzenle(oge->duzenlemeKomutu);
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
  } else if (secilen == eylem::TAM_EKRAN) {
    if (pencere_ && girisKipi_ == false) pencere_->tamEkranDegistir();
  } else if (pencere_ && secilen == eylem::KUCULT) {
    pencere_->kucult();
  } else if (pencere_ && secilen == eylem::KAPAT) {
    pencere_->kapat();
  }
}

// The page's top bar makes room for the window buttons the strip carries on the right.
PencereTasarimi Uygulama::pencereTasarimi() const {
  DugmeDuzeni dugmeler = dugmeDuzeni(portlar_.pencereKurucu.dekorasyonDuzeni());
  const double sagBosluk = kumeGenisligi(dugmeler.sag);
  return {GIRIS_OLCU,
          EN_KUCUK_OLCU,
          SERIT,
          "Nevo",
          ayar_.metinler.kullaniciAraciAdi,
          stilBetigi(sagBosluk),
          {Katman::Arka, Katman::Web, Katman::Serit, Katman::Perde},
          "nevo-ana-pencere",
          std::move(dugmeler),
          ayar_.adres};
}

void Uygulama::pencereKur() {
  if (!adresCoz(ayar_.adres)) {
    adresiReddet("NEVO_ADRES bir adres olarak çözülemedi: \"" + ayar_.adres + "\"");
  }
  // The view, the bridge and the navigation rules all stand on the application's host.
  if (!webAdresi(ayar_.adres)) {
    adresiReddet("NEVO_ADRES bir web adresi değil: \"" + ayar_.adres + "\"");
  }
  perde_ = portlar_.pencereKurucu.kur(pencereTasarimi(), *this, [this](PencereParcalari p) {
    pencere_ = std::move(p.pencere);
    web_ = std::move(p.web);
    if (yakinlastirma_) yakinlikUygula(yakinlastirma_->yuzde());
    web_->adresYukle(ayar_.adres);
    acilisIsareti("yukleme");
  });
  acilisIsareti("pencere");
  serit_ = std::make_unique<Serit>(*pencere_, portlar_.sistem, ayar_.metinler);
  pencere_->ortala();
  pencere_->oneGetir();
  portlar_.sistem.etkinlestir();
  acilisIsareti("gosterildi");
}

// The agent already runs when the address is checked: it ends with the shell.
void Uygulama::adresiReddet(const std::string& neden) {
  ajaniDurdur();
  portlar_.sistem.olumcul(neden);
}

// The bridge carries the link into the page, then the window comes forward, also for a
// link that carried nothing.
void Uygulama::adresGeldi(std::optional<std::string_view> adres) {
  if (!adres || !utf8Mi(*adres)) return;
  kopru_->adresiAktar(*adres);
  if (pencere_) pencere_->oneGetir();
  portlar_.sistem.etkinlestir();
}

void Uygulama::cizildiMi(int deneme) {
  if (deneme > SON_DENEME) {
    perdeyiKaldir();
    return;
  }
  webGerekli().betikSor(CIZIM_SINAMASI, [zayif = weak_from_this(), deneme,
                                         nesil = perdeNesli_](std::optional<bool> cevap) {
    auto uygulama = zayif.lock();
    if (!uygulama || uygulama->perdeNesli_ != nesil) return;
    if (cevap == true) {
      acilisIsareti("metin");
      uygulama->boyaninca(deneme);
      return;
    }
    uygulama->portlar_.kuyruk.sonra(DENEME_ARALIGI, [uygulama, deneme, nesil] {
      if (uygulama->perdeNesli_ == nesil) uygulama->cizildiMi(deneme + 1);
    });
  });
}

// The probe sees text before the engine has painted it: the curtain fades once the page
// has drawn a frame, and at the latest when the probes would have run out.
void Uygulama::boyaninca(int deneme) {
  const auto kaldir = [zayif = weak_from_this(), nesil = perdeNesli_] {
    auto uygulama = zayif.lock();
    if (uygulama && uygulama->perdeNesli_ == nesil) uygulama->perdeyiKaldir();
  };
  webGerekli().betikBekle(KARE_BEKLEMESI, [kaldir](std::optional<bool>) { kaldir(); });
  portlar_.kuyruk.sonra((SON_DENEME + 1 - deneme) * DENEME_ARALIGI, kaldir);
}

void Uygulama::perdeyiKaldir() {
  if (!perde_ || !perde_->bagli() || perdeSoniyor_) return;
  perdeSoniyor_ = true;
  acilisIsareti("solma");
  perde_->sondur(PERDE_SOLMA, [zayif = weak_from_this(), nesil = perdeNesli_] {
    auto uygulama = zayif.lock();
    if (!uygulama || uygulama->perdeNesli_ != nesil) return;
    uygulama->perde_->kaldir();
    uygulama->yazimiBaslat();
  });
}

// Spelling's dictionaries load once the page shows: the launch does not share the
// processor with them.
void Uygulama::yazimiBaslat() {
  if (!std::exchange(yazimIstendi_, true)) webGerekli().yazimDenetiminiBaslat();
}

// The curtain covers the page again, opaque; what was under way for the page before
// (probes, a fade) no longer touches it.
void Uygulama::perdeyiOrt() {
  if (!perde_) return;
  ++perdeNesli_;
  perdeSoniyor_ = false;
  perde_->ort();
}

void Uygulama::hataGoster(std::optional<std::string> basarisizAdres) {
  if (basarisizAdres && !basarisizAdres->empty()) basarisizAdres_ = std::move(basarisizAdres);
  webGerekli().htmlYukle(cevrimdisiSayfa(ayar_.metinler));
}

void Uygulama::yenidenYukle() {
  if (yanitsiz_) {
    sayfayiYenidenBaslat();
  } else if (basarisizAdres_) {
    webGerekli().adresYukle(*basarisizAdres_);
  } else {
    webGerekli().yenile();
  }
}

// A page that stopped responding cannot reload itself: its process is ended (which is no
// crash) and the address it showed is loaded in a new one.
void Uygulama::sayfayiYenidenBaslat() {
  auto& web = webGerekli();
  std::optional<std::string> adres = basarisizAdres_ ? basarisizAdres_ : web.adres();
  if (!adres || *adres == BOS_SAYFA) adres = ayar_.adres;
  yanitsiz_ = false;
  sureciBitiriyor_ = true;
  web.sureciBitir();
  web.adresYukle(*adres);
}

// A web process that ends without the shell asking brings the address it showed back by
// itself, under the curtain, twice a minute at most; after that the end is a failed load
// of that address. On the offline page the address that failed before stays the one to
// retry.
void Uygulama::webSureciBitti() {
  yanitsiz_ = false;
  if (std::exchange(sureciBitiriyor_, false)) return;
  auto adres = webGerekli().adres();
  if (adres == BOS_SAYFA) {
    hataGoster(std::nullopt);
  } else if (!cokmeler_.kaydet()) {
    hataGoster(std::move(adres));
  } else {
    perdeyiOrt();
    webGerekli().adresYukle(adres.value_or(ayar_.adres));
  }
}

void Uygulama::yanitVermiyor(bool evet) { yanitsiz_ = evet; }

WebGorunum& Uygulama::webGerekli() {
  if (!web_) portlar_.sistem.olumcul("web görünümü yok");
  return *web_;
}

void Uygulama::adresDegisti() { kipiTazele(); }

void Uygulama::sayfaIslendi() {
  kopru_->sayfaDegisti();
  if (webGerekli().adres() != BOS_SAYFA) basarisizAdres_.reset();
}

void Uygulama::yuklemeBitti() {
  acilisIsareti("yuklendi");
  cizildiMi(0);
}

void Uygulama::yuklemeBasarisiz(std::optional<std::string> adres) { hataGoster(std::move(adres)); }

bool Uygulama::gezinmeIzni(const std::optional<std::string>& adres, const GezinmeKaynagi& kaynak) {
  const auto karar = gezinmeKarari(adres, ayar_.adres, ayar_.kimlikSoneki, kaynak);
  if (karar == GezinmeKarari::DisaridaAc) portlar_.sistem.disaridaAc(*adres);
  return karar == GezinmeKarari::Kal;
}

void Uygulama::yeniPencereIstendi(const std::optional<std::string>& adres) {
  if (adres && disariCikabilir(*adres)) portlar_.sistem.disaridaAc(*adres);
}

std::vector<BaglamOgesi> Uygulama::baglamMenusu(const Isabet& isabet) const {
  return nevo::baglamMenusu(isabet, anaMenu(ayar_.metinler));
}

void Uygulama::tusKomutu(const std::string& secilen) {
  if (!web_) return;
  if (secilen == eylem::YAZDIR) {
    web_->yazdir();
    return;
  }
  if (!yakinlastirma_) return;
  if (secilen == eylem::YAKINLASTIR) {
    yakinlikUygula(yakinlastirma_->buyut());
  } else if (secilen == eylem::UZAKLASTIR) {
    yakinlikUygula(yakinlastirma_->kucult());
  } else if (secilen == eylem::GERCEK_BOYUT) {
    yakinlikUygula(yakinlastirma_->sifirla());
  }
}

void Uygulama::yakinlikUygula(std::int64_t yuzde) { web_->yakinlik(double(yuzde) / 100); }

bool Uygulama::seritBasildi(int tiklamaSayisi) {
  return serit_ && serit_->basildi(tiklamaSayisi) == Serit::Sonuc::Surukle;
}

// Close hides the window and keeps the application running; zoom toggles as a double
// click on the strip does.
void Uygulama::pencereDugmesi(Dugme dugme) {
  if (!pencere_) return;
  switch (dugme) {
    case Dugme::Kapat:
      pencere_->kapat();
      break;
    case Dugme::Kucult:
      pencere_->kucult();
      break;
    case Dugme::Buyut:
      if (serit_) serit_->buyutKucult();
      break;
    case Dugme::Menu:
      break;
  }
}

}  // namespace nevo
