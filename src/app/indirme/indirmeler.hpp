#pragma once
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>

#include "app/indirme/indirme.hpp"
#include "bridge/bildirim.hpp"
#include "bridge/dosya_kaydet.hpp"
#include "bridge/sayfa.hpp"
#include "temel/ana_kuyruk.hpp"
#include "temel/sistem.hpp"

namespace nevo {

struct IndirmePortlari {
  AnaKuyruk& kuyruk;
  KayitPaneli& kayitPaneli;  // one dialog at a time, shared with the page's file save
  BildirimMerkezi& bildirim;
  Sistem& sistem;
  Sayfa& sayfa;  // the main view, whose page the downloads come from
};

// The engine's downloads: each goes where the user chose in the save dialog (never
// anywhere silently), is written beside that place under a temporary name and appears
// under its own name only once complete; a cancelled or failed one, or one still running
// when the shell quits, leaves nothing behind. One that still runs after a second gets a
// notification of how far it is, brought up to date at each new tenth of the way, at most
// once a second; when it ends a notification in its place offers the folder, with the file
// selected. Only the application's own content downloads, but for what the user asked to
// save themselves: each of their requests lets one download of its address go on.
class Indirmeler final : public IndirmeOlaylari, public std::enable_shared_from_this<Indirmeler> {
 public:
  static constexpr int ILERLEME_ADIMI = 10;  // percent
  // A desktop shows a replaced notification again, and the service names a notification
  // only once it has answered: a second apart, each replaces the one before it.
  static constexpr double ILERLEME_ARALIGI = 1;
  // The engine reports the download the user asked for within moments, a loaded machine
  // included; a request it has not answered by then is forgotten, so that a later
  // download of the same address, one the page starts, is not taken for the user's.
  static constexpr double ISTEK_OMRU = 10;

  static std::shared_ptr<Indirmeler> olustur(IndirmePortlari portlar, std::string uygulamaAdresi);
  Indirmeler(const Indirmeler&) = delete;
  Indirmeler& operator=(const Indirmeler&) = delete;

  std::uint64_t basladi(std::shared_ptr<Indirme> indirme, const std::string& adres) override;
  void kullaniciIstedi(const std::string& adres) override;
  void hedefSor(std::uint64_t no, const std::string& onerilenAd) override;
  void ilerledi(std::uint64_t no, std::uint64_t alinan,
                std::optional<std::uint64_t> toplam) override;
  void bitti(std::uint64_t no) override;
  void basarisiz(std::uint64_t no) override;

  void kapanirken();  // unfinished downloads are cancelled and their files removed
  std::size_t suren() const { return indirmeler_.size(); }

 private:
  struct Kayit {
    std::shared_ptr<Indirme> indirme;
    std::string ad{};
    std::string hedef{};   // the place the user chose
    std::string gecici{};  // beside it, where the engine writes
    std::string bildirimKimligi{};
    std::optional<int> yuzde{};           // the latest, when the size is known
    std::optional<int> gosterilenAdim{};  // the tenth shown, -1 for an unknown size
    bool gosterebilir = false;            // a second has passed since the last one
  };

  Indirmeler(IndirmePortlari portlar, std::string uygulamaAdresi);
  bool izinli(const std::string& adres);
  bool istegiKullan(const std::string& adres);  // true once for each request of `adres`
  void hedefSecildi(std::uint64_t no, std::optional<std::string> yol);
  void araligiBekle(std::uint64_t no);
  void ilerlemeGoster(std::uint64_t no, Kayit& kayit);
  void bitenBildirim(const Kayit& kayit);
  // Forgets a download; the engine's object is let go on a later turn, since the engine
  // may still be reporting through it.
  Kayit birak(std::map<std::uint64_t, Kayit>::iterator yer);
  void temizle(const Kayit& kayit);
  bool bildirimVar() const { return portlar_.sistem.paketKimligi().has_value(); }

  IndirmePortlari portlar_;
  std::string uygulamaAdresi_;
  std::map<std::uint64_t, Kayit> indirmeler_;
  std::uint64_t sonNo_ = 0;
  std::map<std::uint64_t, std::string> istekler_;  // the user's requests not yet come, by number
  std::uint64_t sonIstek_ = 0;
};

}  // namespace nevo
