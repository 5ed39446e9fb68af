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
      masaustu_(Masaustu::olustur({tercih_, baslangic_, *gucKilidi_})),
      bildirim_(bildirimMerkeziOlustur(*kuyruk_)),
      kayitPaneli_(kayitPaneliOlustur()),
      uygulama_(Uygulama::olustur({*kuyruk_,
                                   *sistem_,
                                   *pencereKurucu_,
                                   *menuKurucu_,
                                   {*kuyruk_, *sistem_, *bildirim_, *kayitPaneli_, *masaustu_}},
                                  std::move(ayar))) {}

}  // namespace nevo
