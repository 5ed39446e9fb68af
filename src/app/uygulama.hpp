#pragma once
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "agent/ajan.hpp"
#include "app/cokme_siniri.hpp"
#include "app/indirme/indirmeler.hpp"
#include "app/pencere/baglam_menusu.hpp"
#include "app/pencere/menu_modeli.hpp"
#include "app/pencere/pencere_kurucu.hpp"
#include "app/pencere/serit.hpp"
#include "app/pencere/yakinlastirma.hpp"
#include "app/platform_metinleri.hpp"
#include "bridge/kopru.hpp"
#include "bridge/sayfa.hpp"
#include "temel/ana_kuyruk.hpp"
#include "temel/geometri.hpp"
#include "temel/sistem.hpp"

namespace nevo {

struct UygulamaPortlari {
  AnaKuyruk& kuyruk;
  Sistem& sistem;
  PencereKurucu& pencereKurucu;
  MenuKurucu& menuKurucu;
  KopruPortlari kopru;
  SurecPlatformu* surecler = nullptr;  // without it the agent is neither tied nor recorded
  TercihDeposu* tercihler = nullptr;   // without it the page's zoom is not kept
};

struct UygulamaAyari {
  std::string adres;         // ADRES
  std::string kimlikSoneki;  // the authentication provider's domain suffix
  const PlatformMetinleri& metinler;
  AjanYerleri ajan{};  // without a resource directory there is no agent
};

// The application delegate, over ports: launch and quit, the window and its mode, the
// curtain, navigation and the menu. It owns the window, the web view, the curtain and the
// page bridge, and hands the page's messages to the bridge. It owns the local agent, which
// pairs for the page, and hands incoming links to the bridge.
class Uygulama final : public PencereOlaylari,
                       public Sayfa,
                       public std::enable_shared_from_this<Uygulama> {
 public:
  static constexpr Olcu GIRIS_OLCU{880, 820};
  static constexpr Olcu ANA_OLCU{1080, 760};
  static constexpr Olcu EN_KUCUK_OLCU{720, 520};
  static constexpr double SERIT = 28;
  static constexpr const char* CIZIM_SINAMASI =
      "document.body && document.body.innerText.trim().length > 0";
  // Resolves once the page has drawn two frames: the text the probe saw is on screen.
  static constexpr const char* KARE_BEKLEMESI =
      "return await new Promise(function(r){requestAnimationFrame(function(){"
      "requestAnimationFrame(function(){r(true);});});});";
  static constexpr int SON_DENEME = 149;
  static constexpr double DENEME_ARALIGI = 0.1;
  static constexpr double PERDE_SOLMA = 0.28;

  static std::shared_ptr<Uygulama> olustur(UygulamaPortlari portlar, UygulamaAyari ayar);
  Uygulama(const Uygulama&) = delete;
  Uygulama& operator=(const Uygulama&) = delete;

  // Lifecycle.
  void applicationDidFinishLaunching();
  void applicationWillTerminate();
  void applicationShouldHandleReopen(bool gorunurPencereVar);
  void kipiTazele();
  std::optional<bool> girisKipi() const { return girisKipi_; }
  bool pencereGorunur() const { return pencere_ && pencere_->gorunur(); }

  void menuKur();
  void menuEylemi(const std::string& eylem);  // a chosen menu entry
  void pencereKur();
  void ajaniBaslat() { ajan_.ajaniBaslat(); }
  void ajaniDurdur() { ajan_.ajaniDurdur(); }
  const Ajan& ajan() const { return ajan_; }
  void masaustuKur();

  // An incoming link's text; empty when it could not be read.
  void adresGeldi(std::optional<std::string_view> adres);

  Kopru& kopru() { return *kopru_; }

  // The page's messages, the body as JSON text: handed to the page bridge.
  void userContentController(std::string_view govde, const MesajKaynagi& kaynak) override;
  void yazdirmaIstendi(const MesajKaynagi& kaynak) override;

  // Curtain and render check.
  void cizildiMi(int deneme);
  void boyaninca(int deneme);
  void perdeyiKaldir();
  void perdeyiOrt();
  void yazimiBaslat();

  // Navigation and offline page.
  void hataGoster(std::optional<std::string> basarisizAdres);
  void yenidenYukle();
  Serit* serit() { return serit_.get(); }

  // Sayfa
  std::optional<std::string> sayfaAdresi() const override;
  void sayfadaCalistir(const std::string& betik) override;
  Pencere* anaPencere() override { return pencere_.get(); }
  void pencereyiOneGetir() override;

  // PencereOlaylari
  void adresDegisti() override;
  void sayfaIslendi() override;
  void yuklemeBitti() override;
  void yuklemeBasarisiz(std::optional<std::string> adres) override;
  void yuklemeKesildi() override {}  // the view keeps the page it shows
  bool gezinmeIzni(const std::optional<std::string>& adres, const GezinmeKaynagi& kaynak) override;
  void yeniPencereIstendi(const std::optional<std::string>& adres) override;
  void webSureciBitti() override;
  void yanitVermiyor(bool evet) override;
  bool tusOnceSayfaya() const override { return !yanitsiz_; }
  bool seritBasildi(int tiklamaSayisi) override;
  void pencereDugmesi(Dugme dugme) override;
  std::weak_ptr<IndirmeOlaylari> indirmeler() override { return indirmeler_; }
  std::vector<BaglamOgesi> baglamMenusu(const Isabet& isabet) const override;
  void tusKomutu(const std::string& eylem) override;

 private:
  Uygulama(UygulamaPortlari portlar, UygulamaAyari ayar);
  PencereTasarimi pencereTasarimi() const;
  WebGorunum& webGerekli();
  void sayfayiYenidenBaslat();
  void adresiReddet(const std::string& neden);
  void yakinlikUygula(std::int64_t yuzde);

  UygulamaPortlari portlar_;
  UygulamaAyari ayar_;
  Ajan ajan_;
  CokmeSiniri cokmeler_;
  std::shared_ptr<Indirmeler> indirmeler_;
  std::optional<Yakinlastirma> yakinlastirma_;
  std::unique_ptr<Pencere> pencere_;
  std::unique_ptr<WebGorunum> web_;
  std::unique_ptr<Perde> perde_;
  std::optional<bool> girisKipi_;
  std::unique_ptr<Serit> serit_;
  std::shared_ptr<Kopru> kopru_;
  bool perdeSoniyor_ = false;
  bool yazimIstendi_ = false;
  // Counts each covering of the page: a probe or fade of an earlier one does nothing.
  int perdeNesli_ = 0;
  // The offline page is loaded without an address of its own, so reloading it would show
  // it again: a reload from it loads the address that failed.
  std::optional<std::string> basarisizAdres_;
  // The engine reports the page unresponsive: reload ends its process.
  bool yanitsiz_ = false;
  // The shell itself is ending the web process: its end is no crash.
  bool sureciBitiriyor_ = false;
};

}  // namespace nevo
