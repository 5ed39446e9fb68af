#include "app/indirme/indirmeler.hpp"

#include <unistd.h>

#include <cstdio>
#include <utility>

#include "app/indirme/indirme_izni.hpp"
#include "app/indirme/indirme_metinleri.hpp"
#include "temel/atomik_yaz.hpp"
#include "temel/uuid.hpp"

namespace nevo {
namespace {

// The engine writes under a name of its own beside the place it is given, and renames
// it there at the end.
constexpr const char* MOTORUN_EKI = ".wkdownload";

void sil(const std::string& yol) {
  if (!yol.empty()) ::unlink(yol.c_str());
}

}  // namespace

std::shared_ptr<Indirmeler> Indirmeler::olustur(IndirmePortlari portlar,
                                                std::string uygulamaAdresi) {
  return std::shared_ptr<Indirmeler>(new Indirmeler(portlar, std::move(uygulamaAdresi)));
}

Indirmeler::Indirmeler(IndirmePortlari portlar, std::string uygulamaAdresi)
    : portlar_(portlar), uygulamaAdresi_(std::move(uygulamaAdresi)) {}

std::uint64_t Indirmeler::basladi(std::shared_ptr<Indirme> indirme, const std::string& adres) {
  if (!izinli(adres)) {
    indirme->iptal();
    return 0;
  }
  const auto no = ++sonNo_;
  indirmeler_.emplace(no, Kayit{std::move(indirme)});
  return no;
}

bool Indirmeler::izinli(const std::string& adres) {
  const auto sayfa = portlar_.sayfa.sayfaAdresi();
  if (istegiKullan(adres)) return uygulamaSayfasinda(sayfa, uygulamaAdresi_);
  return indirmeIzinli(sayfa, adres, uygulamaAdresi_);
}

void Indirmeler::kullaniciIstedi(const std::string& adres) {
  const auto no = ++sonIstek_;
  istekler_.emplace(no, adres);
  portlar_.kuyruk.sonra(ISTEK_OMRU, [zayif = weak_from_this(), no] {
    if (auto indirmeler = zayif.lock()) indirmeler->istekler_.erase(no);
  });
}

bool Indirmeler::istegiKullan(const std::string& adres) {
  for (auto yer = istekler_.begin(); yer != istekler_.end(); ++yer) {
    if (yer->second != adres) continue;
    istekler_.erase(yer);
    return true;
  }
  return false;
}

// A dialog already showing ends this request as cancelled, at once.
void Indirmeler::hedefSor(std::uint64_t no, const std::string& onerilenAd) {
  const auto yer = indirmeler_.find(no);
  if (yer == indirmeler_.end()) return;
  yer->second.ad = onerilenAd;
  portlar_.kayitPaneli.ac(onerilenAd,
                          [zayif = weak_from_this(), no](std::optional<std::string> yol) {
                            if (auto indirmeler = zayif.lock())
                              indirmeler->hedefSecildi(no, std::move(yol));
                          });
}

// The dialog has asked before replacing a file: the rename at the end replaces it.
void Indirmeler::hedefSecildi(std::uint64_t no, std::optional<std::string> yol) {
  const auto yer = indirmeler_.find(no);
  if (yer == indirmeler_.end()) return;
  if (!yol) {
    birak(yer).indirme->iptal();
    return;
  }
  auto& kayit = yer->second;
  const auto bolu = yol->rfind('/');
  kayit.ad = bolu == std::string::npos ? *yol : yol->substr(bolu + 1);
  kayit.hedef = *yol;
  kayit.gecici = geciciYol(*yol);
  kayit.bildirimKimligi = "indirme-" + uuidUret();
  kayit.indirme->hedefVer(kayit.gecici);
  araligiBekle(no);
}

void Indirmeler::ilerledi(std::uint64_t no, std::uint64_t alinan,
                          std::optional<std::uint64_t> toplam) {
  const auto yer = indirmeler_.find(no);
  if (yer == indirmeler_.end() || yer->second.hedef.empty()) return;
  yer->second.yuzde = indirmeYuzdesi(alinan, toplam);
  if (yer->second.gosterebilir) ilerlemeGoster(no, yer->second);
}

void Indirmeler::araligiBekle(std::uint64_t no) {
  portlar_.kuyruk.sonra(ILERLEME_ARALIGI, [zayif = weak_from_this(), no] {
    auto indirmeler = zayif.lock();
    if (!indirmeler) return;
    const auto yer = indirmeler->indirmeler_.find(no);
    if (yer == indirmeler->indirmeler_.end()) return;
    yer->second.gosterebilir = true;
    indirmeler->ilerlemeGoster(no, yer->second);
  });
}

void Indirmeler::ilerlemeGoster(std::uint64_t no, Kayit& kayit) {
  const int adim = kayit.yuzde ? *kayit.yuzde / ILERLEME_ADIMI : -1;
  if (kayit.gosterilenAdim && adim <= *kayit.gosterilenAdim) return;
  kayit.gosterilenAdim = adim;
  kayit.gosterebilir = false;
  araligiBekle(no);
  if (!bildirimVar()) return;
  portlar_.bildirim.isBildirimi(indirme_metni::SURUYOR, ilerlemeMetni(kayit.ad, kayit.yuzde),
                                kayit.bildirimKimligi, "", nullptr);
}

// The file takes its name only now; a failed rename leaves nothing, as a failed download.
void Indirmeler::bitti(std::uint64_t no) {
  const auto yer = indirmeler_.find(no);
  if (yer == indirmeler_.end() || yer->second.hedef.empty()) return;
  const auto kayit = birak(yer);
  if (std::rename(kayit.gecici.c_str(), kayit.hedef.c_str()) != 0) {
    temizle(kayit);
    return;
  }
  bitenBildirim(kayit);
}

void Indirmeler::bitenBildirim(const Kayit& kayit) {
  if (!bildirimVar()) return;
  const auto goster = [&sistem = portlar_.sistem, yol = kayit.hedef] {
    sistem.klasordeGoster(yol);
  };
  portlar_.bildirim.isBildirimi(indirme_metni::BITTI, kayit.ad, kayit.bildirimKimligi,
                                indirme_metni::KLASORDE_GOSTER, goster);
}

void Indirmeler::basarisiz(std::uint64_t no) {
  const auto yer = indirmeler_.find(no);
  if (yer == indirmeler_.end()) return;
  temizle(birak(yer));
}

void Indirmeler::kapanirken() {
  while (!indirmeler_.empty()) {
    const auto kayit = birak(indirmeler_.begin());
    kayit.indirme->iptal();
    temizle(kayit);
  }
}

Indirmeler::Kayit Indirmeler::birak(std::map<std::uint64_t, Kayit>::iterator yer) {
  Kayit kayit = std::move(yer->second);
  indirmeler_.erase(yer);
  portlar_.kuyruk.gonder([indirme = kayit.indirme] {});
  return kayit;
}

void Indirmeler::temizle(const Kayit& kayit) {
  sil(kayit.gecici);
  if (!kayit.gecici.empty()) sil(kayit.gecici + MOTORUN_EKI);
  if (!kayit.bildirimKimligi.empty() && bildirimVar()) {
    portlar_.bildirim.bildirimiGeriCek(kayit.bildirimKimligi);
  }
}

}  // namespace nevo
