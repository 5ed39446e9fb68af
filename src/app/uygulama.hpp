#pragma once
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "agent/eslestirme.hpp"
#include "agent/surec.hpp"
#include "temel/geometri.hpp"
#include "app/menu_modeli.hpp"
#include "app/pencere_kurucu.hpp"
#include "app/platform_metinleri.hpp"
#include "app/serit.hpp"
#include "temel/sistem.hpp"
#include "bridge/bildirim.hpp"
#include "bridge/dosya_kaydet.hpp"
#include "bridge/masaustu.hpp"
#include "temel/ana_kuyruk.hpp"

namespace nevo {

struct UygulamaPortlari {
  AnaKuyruk& kuyruk;
  Sistem& sistem;
  PencereKurucu& pencereKurucu;
  MenuKurucu& menuKurucu;
  Masaustu& masaustu;
  BildirimMerkezi& bildirim;
  KayitPaneli& kayitPaneli;
  Eslestirme* eslestirme = nullptr;  // until Part 3.3 lands on a platform
};

struct UygulamaAyari {
  std::string adres;         // ADRES
  std::string kimlikSoneki;  // the authentication provider's domain suffix
  const PlatformMetinleri& metinler;
};

// The application delegate (Parts 1.1–1.6), over ports.
class Uygulama final : public PencereOlaylari, public std::enable_shared_from_this<Uygulama> {
 public:
  static constexpr Olcu GIRIS_OLCU{880, 820};
  static constexpr Olcu ANA_OLCU{1080, 760};
  static constexpr Olcu EN_KUCUK_OLCU{720, 520};
  static constexpr double SERIT = 28;
  static constexpr const char* CIZIM_SINAMASI =
      "document.body && document.body.innerText.trim().length > 0";
  static constexpr int SON_DENEME = 149;
  static constexpr double DENEME_ARALIGI = 0.1;
  static constexpr double PERDE_SOLMA = 0.28;

  static std::shared_ptr<Uygulama> olustur(UygulamaPortlari portlar, UygulamaAyari ayar);
  Uygulama(const Uygulama&) = delete;
  Uygulama& operator=(const Uygulama&) = delete;

  // Stored properties of Part 1.1.
  std::unique_ptr<Pencere> pencere;
  std::unique_ptr<WebGorunum> web;
  std::unique_ptr<Perde> perde;
  std::optional<bool> girisKipi;
  std::unique_ptr<Surec> ajanSureci;

  // Lifecycle (Part 1.1).
  void applicationDidFinishLaunching();
  void applicationWillTerminate();
  void applicationShouldHandleReopen(bool gorunurPencereVar);
  void kipiTazele();
  void pencereyiOneGetir();

  void menuKur();    // Part 1.6
  void menuEylemi(const std::string& eylem);  // a chosen menu entry (Part 1.6)
  void pencereKur();  // Part 1.2
  void ajaniDurdur();  // Part 3.1
  void masaustuKur();  // Part 2.3

  // The page's messages (Part 2.1): the body as JSON text.
  void userContentController(std::string_view govde) override;

  // Notifications (Part 2.4).
  void bildirimGonder(const std::string& baslik, const std::string& govde);
  void bildirimIzniIste();
  void bildirimDurumu();
  void bildirimCevapla(const std::string& kelime);
  void bildirimTiklandi();  // didReceive

  void dosyaKaydet(const std::string& ad, const std::string& icerik);  // Part 2.5
  void ajanEslestir(const std::string& kod);  // Part 3.3

  // Curtain and render check (Part 1.4).
  void cizildiMi(int deneme);
  void perdeyiKaldir();

  // Navigation and offline page (Part 1.5).
  void hataGoster(std::optional<std::string> basarisizAdres);
  void yenidenYukle();
  Serit* serit() { return serit_.get(); }

  // PencereOlaylari
  void adresDegisti() override;
  void sayfaIslendi() override;
  void yuklemeBitti() override;
  void yuklemeBasarisiz(std::optional<std::string> adres) override;
  bool gezinmeIzni(const std::optional<std::string>& adres) override;
  void yeniPencereIstendi(const std::optional<std::string>& adres) override;
  bool seritBasildi(int tiklamaSayisi) override;
  void buyutDugmesi() override;

 private:
  Uygulama(UygulamaPortlari portlar, UygulamaAyari ayar);
  PencereTasarimi pencereTasarimi() const;
  WebGorunum& webGerekli();
  bool kendiSayfasinda() const;  // DESIGN.md section 6
  void sayfaMesaji(const nlohmann::json& govde);
  void tarayicidaAc(const nlohmann::json& govde);

  UygulamaPortlari portlar_;
  UygulamaAyari ayar_;
  std::unique_ptr<Serit> serit_;
  bool perdeSoniyor_ = false;
  std::optional<std::string> basarisizAdres_;  // DESIGN.md section 6: retry that address
};

}  // namespace nevo
