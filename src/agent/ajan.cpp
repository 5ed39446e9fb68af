#include "agent/ajan.hpp"

#include <fcntl.h>
#include <unistd.h>

#include <filesystem>
#include <mutex>
#include <thread>
#include <utility>

#include "agent/ajan_kaydi.hpp"
#include "agent/eslestirme_kodu.hpp"
#include "temel/atomik_yaz.hpp"
#include "temel/dosya_oku.hpp"
#include "temel/karakterler.hpp"

namespace nevo {
namespace {

bool varMi(const std::string& yol) {
  std::error_code hata;
  return std::filesystem::exists(yol, hata);
}

void dizinKur(const std::string& yol) {
  std::error_code hata;
  std::filesystem::create_directories(yol, hata);
}

std::string dizini(const std::string& yol) {
  return std::filesystem::path(yol).parent_path().string();
}

// The log opened to append, created empty when missing; -1 when it cannot be opened.
int gunlukAc(const std::string& yol) {
  return open(yol.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0644);
}

void sil(const std::string& yol) {
  std::error_code hata;
  std::filesystem::remove(yol, hata);
}

}  // namespace

// The pairing runs' road back to the main queue, held by each run; the agent cuts it when
// it goes, so a run that ends later posts nothing.
struct Ajan::Donus {
  Donus(AnaKuyruk& k, Ajan& a) : kuyruk(&k), ajan(&a) {}
  std::mutex kilit;
  AnaKuyruk* kuyruk;
  Ajan* ajan;

  void gonder(std::function<void(Ajan&)> is, const std::shared_ptr<Donus>& kendisi) {
    const std::lock_guard k(kilit);
    if (kuyruk == nullptr) return;
    kuyruk->gonder([kendisi, is = std::move(is)] {
      if (kendisi->ajan != nullptr) is(*kendisi->ajan);
    });
  }
};

Ajan::Ajan(AjanYerleri yerler, AnaKuyruk& kuyruk, SurecPlatformu* platform)
    : yerler_(std::move(yerler)),
      platform_(platform),
      donus_(std::make_shared<Donus>(kuyruk, *this)) {}

Ajan::~Ajan() {
  const std::lock_guard k(donus_->kilit);
  donus_->kuyruk = nullptr;
  donus_->ajan = nullptr;
}

std::optional<std::string> Ajan::calismaZamani() const {
  if (!yerler_.kaynakDizini) return std::nullopt;
  auto yol = *yerler_.kaynakDizini + "/" + CALISMA_ZAMANI;
  if (!varMi(yol)) return std::nullopt;
  return yol;
}

std::optional<std::string> Ajan::panelYolu() const {
  if (!yerler_.kaynakDizini) return std::nullopt;
  const auto metin = dosyaOku(*yerler_.kaynakDizini + "/" + PANEL_YOLU_DOSYASI);
  if (!metin) return std::nullopt;
  auto kirpik = kirp(*metin);
  if (kirpik.empty()) return std::nullopt;
  return kirpik;
}

std::optional<std::string> Ajan::ajanYolu() const {
  if (yerler_.kaynakDizini) {
    auto paketteki = *yerler_.kaynakDizini + AJAN_BETIGI;
    if (varMi(paketteki)) return paketteki;
  }
  const auto panel = panelYolu();
  if (!panel) return std::nullopt;
  auto yol = *panel + AJAN_BETIGI;
  if (!varMi(yol)) return std::nullopt;
  return yol;
}

SurecIstegi Ajan::istek(const std::string& calismaZamani, const std::string& betik) const {
  return {calismaZamani, {betik}, ajanOrtami(yerler_), dizini(betik)};
}

void Ajan::ajaniBaslat() {
  if (ajanSureci_ && ajanSureci_->calisiyor()) return;
  const auto calismaZamani = this->calismaZamani();
  if (!calismaZamani) return;
  const auto betik = ajanYolu();
  if (!betik) return;
  dizinKur(yerler_.ev + "/Nevo");
  const auto istek = this->istek(*calismaZamani, *betik);
  dizinKur(yerler_.veriDizini);
  const auto gunlukYolu = yerler_.veriDizini + AJAN_GUNLUGU;
  kalaniDurdur();
  const int gunluk = gunlukAc(gunlukYolu);
  auto sonuc = platform_ ? platform_->bagliBaslat(istek, gunluk) : surecBaslat(istek, gunluk);
  if (gunluk >= 0) close(gunluk);
  if (auto* surec = std::get_if<std::unique_ptr<Surec>>(&sonuc)) {
    ajanSureci_ = std::move(*surec);
    kaydet();
    return;
  }
  ajanSureci_.reset();
  const int yeniden = gunlukAc(gunlukYolu);
  if (yeniden < 0) return;
  const auto satir = BASLATILAMADI + std::get<std::string>(sonuc) + "\n";
  [[maybe_unused]] const auto yazilan = write(yeniden, satir.data(), satir.size());
  close(yeniden);
}

void Ajan::ajaniDurdur() {
  if (!ajanSureci_) return;
  ajanSureci_->sonlandir();
  ajanSureci_.reset();
  if (platform_) sil(yerler_.veriDizini + AJAN_KAYDI);
}

// An agent recorded by an earlier shell that still runs is told to end; the start does not
// wait for it. A record of a process that has gone, or whose number another process now
// has, is left for the new record to replace.
void Ajan::kalaniDurdur() {
  if (!platform_) return;
  const auto yol = yerler_.veriDizini + AJAN_KAYDI;
  if (const auto kayit = kayitOku(dosyaOku(yol).value_or("")))
    platform_->kayitliysaSonlandir(*kayit);
  sil(yol);
}

void Ajan::kaydet() const {
  if (!platform_ || !ajanSureci_) return;
  const auto numara = ajanSureci_->numara();
  if (auto kimlik = platform_->kimlik(numara)) {
    // It names a running agent, which a power loss ends as well: the launch does not wait
    // for the disk.
    atomikYaz(yerler_.veriDizini + AJAN_KAYDI, kayitMetni({numara, std::move(*kimlik)}),
              Dayaniklilik::Cokme);
  }
}

void Ajan::ajanEslestir(const std::string& kod, Bitince bitince) {
  const auto normal = eslestirmeKodu(kod);
  if (!normal) return bitince(false, KOD_GECERSIZ);
  const auto betik = ajanYolu();
  if (!betik) return bitince(false, AJAN_YOK);
  const auto calismaZamani = this->calismaZamani();
  if (!calismaZamani) return bitince(false, AJAN_YOK);
  auto istek = this->istek(*calismaZamani, *betik);
  istek.argumanlar.insert(istek.argumanlar.end(), {"eslestir", *normal});
  std::thread([istek = std::move(istek), donus = donus_, bitince = std::move(bitince)]() mutable {
    auto sonuc = surecCalistir(istek);
    donus->gonder(
        [sonuc = std::move(sonuc), bitince = std::move(bitince)](Ajan& ajan) {
          if (!sonuc.durum) return bitince(false, ESLESTIRME_CALISMADI);
          if (*sonuc.durum == 0) ajan.ajaniBaslat();
          bitince(*sonuc.durum == 0, kirp(sonuc.cikti));
        },
        donus);
  }).detach();
}

}  // namespace nevo
