#pragma once
#include <memory>
#include <string>

#include "app/platform_metinleri.hpp"
#include "app/uygulama.hpp"
#include "fakes/sahte_kuyruk.hpp"
#include "fakes/sahte_masaustu.hpp"
#include "fakes/sahte_pencere.hpp"
#include "fakes/sahte_sistem.hpp"

namespace nevo::sahte {

class PencereKurucuSahte final : public PencereKurucu {
 public:
  explicit PencereKurucuSahte(Gunluk gunluk) : gunluk_(std::move(gunluk)) {}
  PencereParcalari kur(const PencereTasarimi& t, PencereOlaylari& o) override {
    gunluk_->push_back("pencere.kur");
    tasarim = t;
    olaylar = &o;
    auto p = std::make_unique<PencereSahte>(gunluk_);
    auto w = std::make_unique<WebSahte>();
    auto c = std::make_unique<PerdeSahte>();
    pencere = p.get();
    web = w.get();
    perde = c.get();
    return {std::move(p), std::move(w), std::move(c)};
  }
  PencereTasarimi tasarim;
  PencereOlaylari* olaylar = nullptr;
  PencereSahte* pencere = nullptr;
  WebSahte* web = nullptr;
  PerdeSahte* perde = nullptr;

 private:
  Gunluk gunluk_;
};

inline constexpr const char* ADRES = "https://app.nevo.ai/";

// Fakes of every desktop integration: the hot key, the panel, the menu-bar item and the
// recorder all present.
struct MasaustuSahteleri {
  MasaustuPortlari masaustuPortlari() {
    return {tercih, baslangic, kilit, &kisayol, &hizli, &menuCubugu, &kaydedici};
  }

  Gunluk gunluk = std::make_shared<std::vector<std::string>>();
  TercihDeposuSahte depo;
  Tercih tercih{depo};
  SistemSahte sistem{gunluk};
  GirisOgesiSahte girisOgesi;
  Baslangic baslangic{girisOgesi, sistem};
  GucKilidiSahte kilit;
  KisayolSahte kisayol;
  HizliPanelSahte hizli;
  MenuCubuguSahte menuCubugu;
  KaydediciSahte kaydedici;
};

// The desktop bridge alone over fakes; the scripts it sends to the page are collected.
struct MasaustuDuzenegi : MasaustuSahteleri {
  SayfaYoluSahte yol;
  std::vector<std::string>& betikler = yol.betikler;
  std::shared_ptr<Masaustu> masaustu = Masaustu::olustur(masaustuPortlari(), yol);
};

// An application delegate over fakes.
struct UygulamaDuzenegi : MasaustuSahteleri {
  explicit UygulamaDuzenegi(std::string adres = ADRES,
                            const PlatformMetinleri& metinler = linuxMetinleri())
      : uygulama(Uygulama::olustur(
            {kuyruk,
             sistem,
             kurucu,
             menu,
             {kuyruk, sistem, bildirim, kayitPaneli, masaustuPortlari(), &eslestirme}},
            {std::move(adres), "supabase.co", metinler})),
        masaustu(&uygulama->kopru().masaustu()) {}

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
  void mesaj(const std::string& govde) { uygulama->userContentController(govde); }

  Kuyruk kuyruk;
  PencereKurucuSahte kurucu{gunluk};
  BildirimMerkeziSahte bildirim;
  KayitPaneliSahte kayitPaneli;
  EslestirmeSahte eslestirme;
  MenuKurucuSahte menu{gunluk};
  std::shared_ptr<Uygulama> uygulama;
  Masaustu* masaustu;
};

}  // namespace nevo::sahte
