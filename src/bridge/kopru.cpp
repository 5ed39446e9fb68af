#include "bridge/kopru.hpp"

#include <nlohmann/json.hpp>
#include <utility>

#include "agent/gelen_adres.hpp"
#include "bridge/govde.hpp"
#include "bridge/sayfa_cagrilari.hpp"
#include "temel/adres.hpp"
#include "temel/uuid.hpp"

namespace nevo {
namespace {

std::optional<std::string> hostu(const std::optional<std::string>& adres) {
  if (!adres) return std::nullopt;
  auto cozulen = adresCoz(*adres);
  if (!cozulen || !cozulen->host) return std::nullopt;
  return kucukHarfli(*cozulen->host);
}

}  // namespace

std::shared_ptr<Kopru> Kopru::olustur(KopruPortlari portlar, std::string adres, Sayfa& sayfa) {
  return std::shared_ptr<Kopru>(new Kopru(portlar, std::move(adres), sayfa));
}

Kopru::Kopru(KopruPortlari portlar, std::string adres, Sayfa& sayfa)
    : kuyruk_(portlar.kuyruk),
      sistem_(portlar.sistem),
      bildirim_(portlar.bildirim),
      kayitPaneli_(portlar.kayitPaneli),
      eslestirme_(portlar.eslestirme),
      adres_(std::move(adres)),
      sayfa_(sayfa),
      masaustu_(portlar.masaustu) {}

// Every script for the page travels here: on a later turn of the main queue, in order.
void Kopru::sayfayaGonder(const std::string& betik) {
  kuyruk_.gonder([zayif = weak_from_this(), betik] {
    if (auto kopru = zayif.lock()) kopru->sayfa_.sayfadaCalistir(betik);
  });
}

void Kopru::mesaj(std::string_view govde, const MesajKaynagi& kaynak) {
  if (!kendiSayfasinda(kaynak)) return;
  const auto cozulen = govdeCoz(govde);
  if (cozulen.is_discarded()) return;
  sayfaMesaji(cozulen);
}

// The sign-in provider's hosts stay inside the view, and the provider hosts pages for
// anyone; frames inside the page may come from anywhere. So only the main frame, showing
// the application's own host, may talk to the shell.
bool Kopru::kendiSayfasinda(const MesajKaynagi& kaynak) const {
  if (!kaynak.anaCerceve) return false;
  const auto beklenen = hostu(adres_);
  if (!beklenen || hostu(sayfa_.sayfaAdresi()) != beklenen) return false;
  return !kaynak.host || kucukHarfli(*kaynak.host) == *beklenen;
}

void Kopru::sayfaMesaji(const nlohmann::json& govde) {
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
    bildirim_.ayarlariAc();
  } else if (*tur == "dosya-kaydet") {
    dosyaKaydet(metin("ad", "nevo.json"), metin("icerik", ""));
  } else if (*tur == "bildirim") {
    bildirimGonder(metin("baslik", "Nevo"), metin("govde", ""));
  } else if (*tur == "masaustu") {
    masaustu_.mesaj(govde);
  } else if (*tur == "masaustu-is") {
    masaustu_.isMesaji(govde);
  } else if (*tur == "ajan-eslestir") {
    ajanEslestir(metin("kod", ""));
  }
}

// Only "https", compared exactly: the page may hand only secure addresses to the browser.
void Kopru::tarayicidaAc(const nlohmann::json& govde) {
  const auto url = metinAlani(govde, "url");
  if (!url) return;
  const auto cozulen = adresCoz(*url);
  if (cozulen && cozulen->sema == "https") sistem_.disaridaAc(*url);
}

// The bridge reaches the page through this bridge from now on. The panel's text brings
// the window forward and reaches the page; the menu-bar item's entries quit, show the
// window, or reach the page as commands. The callbacks hold the application's side weakly:
// once it is gone they only hand the text or command on to the desktop bridge.
void Kopru::masaustuKur() {
  const auto zayif = weak_from_this();
  const auto zayifMasaustu = masaustu_.weak_from_this();
  masaustu_.sayfaBagla(zayif);
  masaustu_.hizli().gonderAyarla([zayif, zayifMasaustu](const std::string& metin) {
    if (auto kopru = zayif.lock()) kopru->sayfa_.pencereyiOneGetir();
    if (auto masaustu = zayifMasaustu.lock()) masaustu->hizliMesaj(metin);
  });
  masaustu_.menu().eylemAyarla([zayif, zayifMasaustu, &sistem = sistem_](const std::string& komut) {
    if (komut == "cik") {
      sistem.sonlandir();
      return;
    }
    if (auto kopru = zayif.lock()) kopru->sayfa_.pencereyiOneGetir();
    auto masaustu = zayifMasaustu.lock();
    if (masaustu && komut != "ac") masaustu->komut(komut);
  });
  masaustu_.kur();
}

void Kopru::sayfaDegisti() { masaustu_.sayfaDegisti(); }

void Kopru::kapanirken() { masaustu_.kapanirken(); }

// Nothing touches the notification service without a bundle identifier.
void Kopru::bildirimTemsilcisiOl(const std::vector<std::string>& dugmeler) {
  bildirim_.temsilciOl(
      [zayif = weak_from_this()] {
        if (auto kopru = zayif.lock()) kopru->bildirimTiklandi();
      },
      dugmeler);
}

void Kopru::bildirimGonder(const std::string& baslik, const std::string& govde) {
  if (!sistem_.paketKimligi()) return;
  bildirim_.gonder(baslik, govde, uuidUret());
}

void Kopru::bildirimIzniIste() {
  if (!sistem_.paketKimligi()) {
    bildirimCevapla("desteklenmiyor");
    return;
  }
  bildirim_.izinIste([zayif = weak_from_this()] {
    if (auto kopru = zayif.lock()) kopru->bildirimDurumu();
  });
}

void Kopru::bildirimDurumu() {
  if (!sistem_.paketKimligi()) {
    bildirimCevapla("desteklenmiyor");
    return;
  }
  bildirim_.yetki([zayif = weak_from_this()](BildirimYetkisi yetki) {
    if (auto kopru = zayif.lock()) kopru->bildirimCevapla(bildirimKelimesi(yetki));
  });
}

void Kopru::bildirimCevapla(const std::string& kelime) {
  sayfayaGonder(nevoBildirimDurumu(kelime));
}

// A click only brings the application forward; nothing reaches the page.
void Kopru::bildirimTiklandi() { sayfa_.pencereyiOneGetir(); }

// Fire and forget: cancel and write errors end silently. The panel shows one dialog at a
// time: a request while one is showing ends as cancelled and its text is dropped.
void Kopru::dosyaKaydet(const std::string& ad, const std::string& icerik) {
  kayitPaneli_.ac(ad, [icerik](std::optional<std::string> yol) {
    if (yol) atomikYaz(*yol, icerik);
  });
}

// The outcome comes back to this bridge, whenever the pairing ends; a bridge that is gone
// by then hears nothing.
void Kopru::ajanEslestir(const std::string& kod) {
  if (!eslestirme_) return;
  eslestirme_->ajanEslestir(kod, [zayif = weak_from_this()](bool ok, const std::string& mesaj) {
    if (auto kopru = zayif.lock()) kopru->eslestirmeCevapla(ok, mesaj);
  });
}

// Evaluated at once, without a completion; dropped without a view.
void Kopru::eslestirmeCevapla(bool ok, const std::string& mesaj) {
  sayfa_.sayfadaCalistir(nevoEslestirmeSonucu(ok, mesaj));
}

// Whatever the link carries goes into the page at once: nothing waits for the page, so a
// page that has not yet defined its function loses the link.
void Kopru::adresiAktar(std::string_view adres) {
  if (baglantiAdresiMi(adres)) {
    baglantiyiAktar(adres);
  } else {
    oturumuAktar(adres);
  }
}

void Kopru::baglantiyiAktar(std::string_view adres) {
  if (const auto sonuc = baglantiOku(adres)) {
    sayfa_.sayfadaCalistir(nevoBaglantiDonusu(sonuc->kod, sonuc->baglanti));
  }
}

void Kopru::oturumuAktar(std::string_view adres) {
  if (const auto jetonlar = oturumOku(adres)) {
    sayfa_.sayfadaCalistir(nevoOturumKur(jetonlar->erisim, jetonlar->yenileme));
  }
}

}  // namespace nevo
