#pragma once
#include <memory>
#include <optional>
#include <string>

#include "app/platform_metinleri.hpp"
#include "app/uygulama.hpp"
#include "bridge/tek_kayit_paneli.hpp"
#include "fakes/sahte_kisayol.hpp"
#include "fakes/sahte_kuyruk.hpp"
#include "fakes/sahte_masaustu.hpp"
#include "fakes/sahte_pencere.hpp"
#include "fakes/sahte_sistem.hpp"

namespace nevo::sahte {

class PencereKurucuSahte final : public PencereKurucu {
 public:
  explicit PencereKurucuSahte(Gunluk gunluk) : gunluk_(std::move(gunluk)) {}
  std::unique_ptr<Perde> kur(const PencereTasarimi& t, PencereOlaylari& o,
                             const WebKuruldu& webKuruldu) override {
    gunluk_->push_back("pencere.kur");
    tasarim = t;
    olaylar = &o;
    auto p = std::make_unique<PencereSahte>(gunluk_);
    auto w = std::make_unique<WebSahte>(gunluk_);
    pencere = p.get();
    web = w.get();
    webKuruldu({std::move(p), std::move(w)});
    gunluk_->push_back("perde.kur");
    auto c = std::make_unique<PerdeSahte>();
    perde = c.get();
    return c;
  }
  std::string dekorasyonDuzeni() const override { return dekorasyon; }
  std::string dekorasyon;  // the desktop's window-button layout
  PencereTasarimi tasarim;
  PencereOlaylari* olaylar = nullptr;
  PencereSahte* pencere = nullptr;
  WebSahte* web = nullptr;
  PerdeSahte* perde = nullptr;

 private:
  Gunluk gunluk_;
};

inline constexpr const char* ADRES = "https://app.nevo.ai/";

// The desktop bridge over its real integrations, on fakes of the platform's ports.
struct MasaustuDuzenegi {
  // Gives the bridge a way to the page that collects its scripts in `betikler`.
  void betikleriTopla() { masaustu->sayfaBagla(yol); }

  Gunluk gunluk = std::make_shared<std::vector<std::string>>();
  TercihDeposuSahte depo;
  Tercih tercih{depo};
  SistemSahte sistem{gunluk};
  GirisOgesiSahte girisOgesi;
  Baslangic baslangic{girisOgesi, sistem};
  GucKilidiSahte kilit;
  Kuyruk kuyruk;
  SicakTusSahte sicakTus;
  Kisayol kisayol{sicakTus, tercih, kuyruk};
  HizliGorunumSahte hizliGorunum;
  HizliPencere hizli{hizliGorunum};
  DurumOgesiSahte durumOgesi;
  MenuCubugu menuCubugu{durumOgesi};
  KisayolLevhasiSahte levha;
  KisayolKaydedici kaydedici{
      {levha, kisayol, tercih, *linuxMetinleri().kisayol, [] { return SistemKisayollari{}; }}};
  std::shared_ptr<Masaustu> masaustu =
      Masaustu::olustur({tercih, baslangic, kilit, kisayol, hizli, menuCubugu, kaydedici});
  std::shared_ptr<SayfaYoluSahte> yol = std::make_shared<SayfaYoluSahte>();
  std::vector<std::string>& betikler = yol->betikler;
};

// An application delegate over fakes. Given the agent's places, the application pairs the
// agent itself; otherwise pairing codes are collected in `eslestirme`.
struct UygulamaDuzenegi : MasaustuDuzenegi {
  explicit UygulamaDuzenegi(std::string adres = ADRES,
                            const PlatformMetinleri& metinler = linuxMetinleri(),
                            std::optional<AjanYerleri> ajan = std::nullopt)
      : uygulama(Uygulama::olustur(
            {kuyruk,
             sistem,
             kurucu,
             menu,
             {kuyruk, sistem, bildirim, tekKayitPaneli, *masaustu, ajan ? nullptr : &eslestirme},
             nullptr,
             &depo},
            {std::move(adres), "supabase.co", metinler, ajan.value_or(AjanYerleri{})})) {}

  // Launches and returns the window fakes.
  UygulamaDuzenegi& ac() {
    uygulama->applicationDidFinishLaunching();
    return *this;
  }
  // Launched with a bundle identifier, the main view showing the application's own page.
  UygulamaDuzenegi& paketliAc() {
    sistem.kimlik = "app.nevo.Nevo";
    ac();
    web().suankiAdres = std::string(ADRES) + "home";
    return *this;
  }
  PencereSahte& pencere() { return *kurucu.pencere; }
  WebSahte& web() { return *kurucu.web; }
  PerdeSahte& perde() { return *kurucu.perde; }
  void adreseGit(const std::string& adres) {
    web().suankiAdres = adres;
    uygulama->adresDegisti();
  }

  // The page's message, as the web view hands it on.
  void mesaj(const std::string& govde, const MesajKaynagi& kaynak = {}) {
    uygulama->userContentController(govde, kaynak);
  }

  PencereKurucuSahte kurucu{gunluk};
  BildirimMerkeziSahte bildirim;
  KayitPaneliSahte kayitPaneli;
  TekKayitPaneli tekKayitPaneli{kayitPaneli};
  EslestirmeSahte eslestirme;
  MenuKurucuSahte menu{gunluk};
  std::shared_ptr<Uygulama> uygulama;
};

}  // namespace nevo::sahte
