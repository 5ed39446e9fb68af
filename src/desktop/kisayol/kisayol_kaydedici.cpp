#include "desktop/kisayol/kisayol_kaydedici.hpp"

#include <utility>

namespace nevo {

// A second opening replaces the earlier completion without calling it.
void KisayolKaydedici::ac(Pencere& ustunde, std::function<void()> bitince) {
  bitince_ = std::move(bitince);
  bekleneniGeriCek();
  if (acik_) p_.levha.kapat();
  acik_ = true;
  p_.levha.ac(ustunde, p_.metinler,
              {[this](const TusBasimi& tus) { basildi(tus); }, [this] { kapat(false); }});
  if (!p_.kisayol.destekli()) p_.levha.uyariYaz(p_.metinler.desteklenmiyor);
}

void KisayolKaydedici::basildi(const TusBasimi& tus) {
  if (!acik_) return;
  if (tus.kod == ESCAPE_KODU) {
    kapat(false);
    return;
  }
  if (!tus.karakterler || tus.karakterler->empty() || bekliyor_) return;
  const auto karar = kisayolDenetle(
      tus, p_.sistemKisayollari ? p_.sistemKisayollari() : std::nullopt, p_.metinler);
  if (!karar.tamam) {
    p_.levha.uyariYaz(karar.mesaj);
    return;
  }
  kabulEt(karar);
}

void KisayolKaydedici::kabulEt(const KisayolKarari& karar) {
  if (!p_.kisayol.destekli()) {
    p_.levha.uyariYaz(p_.metinler.desteklenmiyor);
    return;
  }
  bekliyor_ = true;
  p_.kisayol.tak(karar.kod, karar.mod, [zayif = std::weak_ptr(kendisi_), karar](bool kabul) {
    if (const auto kendisi = zayif.lock()) (*kendisi)->sonucGeldi(karar, kabul);
  });
}

void KisayolKaydedici::sonucGeldi(const KisayolKarari& karar, bool kabul) {
  if (!std::exchange(bekliyor_, false)) return;
  if (kabul) {
    p_.tercih.kisayolKod(karar.kod);
    p_.tercih.kisayolMod(karar.mod);
    p_.tercih.kisayolAd(karar.ad);
    kapat(true);
    return;
  }
  p_.kisayol.kayitliyiGeriTak();
  p_.levha.uyariYaz(p_.metinler.baskaUygulamada);
}

// A request still waiting for its verdict is withdrawn, and the stored hot key comes back.
void KisayolKaydedici::bekleneniGeriCek() {
  if (!std::exchange(bekliyor_, false)) return;
  p_.kisayol.birak();
  p_.kisayol.kayitliyiGeriTak();
}

void KisayolKaydedici::kapat(bool kaydedildi) {
  bekleneniGeriCek();
  if (std::exchange(acik_, false)) p_.levha.kapat();
  sonSonuc_ = kaydedildi;
  if (auto bitince = std::exchange(bitince_, nullptr)) bitince();
}

}  // namespace nevo
