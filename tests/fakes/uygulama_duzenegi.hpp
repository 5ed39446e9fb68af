#pragma once
#include <memory>
#include <string>

#include "app/platform_metinleri.hpp"
#include "app/uygulama.hpp"
#include "fakes/sahte_kuyruk.hpp"
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

// An application delegate over fakes, as the tests of Part 1 use it.
struct UygulamaDuzenegi {
  explicit UygulamaDuzenegi(std::string adres = ADRES,
                            const PlatformMetinleri& metinler = linuxMetinleri())
      : uygulama(Uygulama::olustur({kuyruk, sistem, kurucu, menu},
                                   {std::move(adres), "supabase.co", metinler})) {}

  // Launches and returns the window fakes.
  UygulamaDuzenegi& ac() {
    uygulama->applicationDidFinishLaunching();
    return *this;
  }
  PencereSahte& pencere() { return *kurucu.pencere; }
  WebSahte& web() { return *kurucu.web; }
  PerdeSahte& perde() { return *kurucu.perde; }
  void adreseGit(const std::string& adres) {
    web().suankiAdres = adres;
    uygulama->adresDegisti();
  }

  Gunluk gunluk = std::make_shared<std::vector<std::string>>();
  Kuyruk kuyruk;
  SistemSahte sistem{gunluk};
  PencereKurucuSahte kurucu{gunluk};
  MenuKurucuSahte menu{gunluk};
  std::shared_ptr<Uygulama> uygulama;
};

}  // namespace nevo::sahte
