#include "app/kabuk.hpp"

#include <utility>

namespace nevo {

Kabuk::Kabuk(UygulamaAyari ayar)
    : kuyruk_(anaKuyrukOlustur()),
      sistem_(sistemOlustur()),
      pencereKurucu_(pencereKurucuOlustur()),
      menuKurucu_(menuKurucuOlustur([this](const std::string& eylem) {
        if (uygulama_) uygulama_->menuEylemi(eylem);
      })),
      tercihDeposu_(tercihDeposuOlustur()),
      tercih_(*tercihDeposu_),
      girisOgesi_(girisOgesiOlustur()),
      baslangic_(*girisOgesi_, *sistem_),
      gucKilidi_(gucKilidiOlustur()),
      sicakTus_(sicakTusOlustur()),
      kisayol_(*sicakTus_, tercih_, *kuyruk_),
      hizliGorunum_(hizliGorunumOlustur()),
      hizli_(*hizliGorunum_),
      durumOgesi_(durumOgesiOlustur()),
      menuCubugu_(*durumOgesi_),
      kisayolLevhasi_(kisayolLevhasiOlustur()),
      kaydedici_(
          {*kisayolLevhasi_, kisayol_, tercih_, *ayar.metinler.kisayol, sistemKisayollariOku}),
      masaustu_(Masaustu::olustur(
          {tercih_, baslangic_, *gucKilidi_, kisayol_, hizli_, menuCubugu_, kaydedici_})),
      bildirim_(bildirimMerkeziOlustur(*kuyruk_)),
      kayitPaneli_(kayitPaneliOlustur()),
      tekKayitPaneli_(*kayitPaneli_),
      surecler_(surecPlatformuOlustur()),
      uygulama_(Uygulama::olustur({*kuyruk_,
                                   *sistem_,
                                   *pencereKurucu_,
                                   *menuKurucu_,
                                   {*kuyruk_, *sistem_, *bildirim_, tekKayitPaneli_, *masaustu_},
                                   surecler_.get(),
                                   tercihDeposu_.get()},
                                  std::move(ayar))) {}

}  // namespace nevo
