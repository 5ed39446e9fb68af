#pragma once
#include <memory>

#include "app/pencere/menu_modeli.hpp"
#include "app/pencere/pencere_kurucu.hpp"
#include "app/uygulama.hpp"
#include "bridge/bildirim.hpp"
#include "bridge/dosya_kaydet.hpp"
#include "bridge/tek_kayit_paneli.hpp"
#include "desktop/baslangic.hpp"
#include "desktop/hizli_pencere.hpp"
#include "desktop/kisayol/kisayol.hpp"
#include "desktop/kisayol/kisayol_kaydedici.hpp"
#include "desktop/menu_cubugu.hpp"
#include "desktop/tercih.hpp"
#include "desktop/uyku_engeli.hpp"
#include "temel/ana_kuyruk.hpp"
#include "temel/sistem.hpp"

namespace nevo {

// The whole shell: the platform's ports, built through the same factories and in the same
// order on every platform, and the application delegate over them. Each platform's entry
// point builds one once the platform's application object exists.
class Kabuk {
 public:
  explicit Kabuk(UygulamaAyari ayar);
  Kabuk(const Kabuk&) = delete;
  Kabuk& operator=(const Kabuk&) = delete;

  Uygulama& uygulama() { return *uygulama_; }
  Sistem& sistem() { return *sistem_; }

 private:
  std::unique_ptr<AnaKuyruk> kuyruk_;
  std::unique_ptr<Sistem> sistem_;
  std::unique_ptr<PencereKurucu> pencereKurucu_;
  std::unique_ptr<MenuKurucu> menuKurucu_;
  std::unique_ptr<TercihDeposu> tercihDeposu_;
  Tercih tercih_;
  std::unique_ptr<GirisOgesi> girisOgesi_;
  Baslangic baslangic_;
  std::unique_ptr<GucKilidi> gucKilidi_;
  std::unique_ptr<SicakTus> sicakTus_;
  Kisayol kisayol_;
  std::unique_ptr<HizliGorunum> hizliGorunum_;
  HizliPencere hizli_;
  std::unique_ptr<DurumOgesi> durumOgesi_;
  MenuCubugu menuCubugu_;
  std::unique_ptr<KisayolLevhasi> kisayolLevhasi_;
  KisayolKaydedici kaydedici_;
  std::shared_ptr<Masaustu> masaustu_;  // outlives the application delegate
  std::unique_ptr<BildirimMerkezi> bildirim_;
  std::unique_ptr<KayitPaneli> kayitPaneli_;
  TekKayitPaneli tekKayitPaneli_;
  std::unique_ptr<SurecPlatformu> surecler_;
  std::shared_ptr<Uygulama> uygulama_;
};

}  // namespace nevo
