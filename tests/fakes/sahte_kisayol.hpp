#pragma once
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "desktop/durum_ogesi.hpp"
#include "desktop/hizli_gorunum.hpp"
#include "desktop/kisayol/kisayol_levhasi.hpp"
#include "desktop/kisayol/sicak_tus.hpp"

namespace nevo::sahte {

// A hot-key registration that other applications may already hold.
class SicakTusSahte final : public SicakTus {
 public:
  struct Kayit {
    std::uint32_t kod, mod;
    bool operator==(const Kayit&) const = default;
  };
  bool destekli() const override { return destekler; }
  void isleyiciKur(std::function<void()> b) override {
    ++isleyiciKurmalari;
    basildi = std::move(b);
  }
  // Answers at once, unless `sonraYanitla` is set: then the verdict waits for `yanitla`.
  void kaydet(std::uint32_t kod, std::uint32_t mod, Sonuc sonuc) override {
    denemeler.push_back({kod, mod});
    bekleyen = [this, kod, mod, sonuc = std::move(sonuc)] {
      for (const auto& k : baskasinda) {
        if (k == Kayit{kod, mod}) return sonuc(false);
      }
      kayitli = Kayit{kod, mod};
      sonuc(true);
    };
    if (!sonraYanitla) yanitla();
  }
  void kaldir() override {
    ++kaldirmalar;
    kayitli.reset();
    bekleyen = nullptr;
  }
  // The desktop's later answer to the registration still waiting.
  void yanitla() {
    if (auto yanit = std::exchange(bekleyen, nullptr)) yanit();
  }
  // A press of the registered combination, as the system delivers it.
  void bas() {
    if (basildi) basildi();
  }
  bool destekler = true;
  bool sonraYanitla = false;
  std::function<void()> bekleyen;
  std::vector<Kayit> baskasinda, denemeler;
  std::optional<Kayit> kayitli;
  std::function<void()> basildi;
  int isleyiciKurmalari = 0, kaldirmalar = 0;
};

class KisayolLevhasiSahte final : public KisayolLevhasi {
 public:
  void ac(Pencere& p, const KisayolMetinleri& m, Olaylar o) override {
    ++acmalar;
    ustunde = &p;
    metinler = &m;
    olaylar = std::move(o);
    acik = true;
    uyari.clear();
  }
  void uyariYaz(const std::string& u) override { uyari = u; }
  void kapat() override {
    ++kapatmalar;
    acik = false;
  }
  Pencere* ustunde = nullptr;
  const KisayolMetinleri* metinler = nullptr;
  Olaylar olaylar;
  bool acik = false;
  std::string uyari;
  int acmalar = 0, kapatmalar = 0;
};

class HizliGorunumSahte final : public HizliGorunum {
 public:
  void gonderildiAyarla(std::function<void()> g) override { gonderildi = std::move(g); }
  bool gorunur() const override { return acik; }
  void goster() override {
    acik = true;
    ++gostermeler;
  }
  void gizle() override { acik = false; }
  std::string metin() const override { return alan; }
  void metinYaz(const std::string& m) override { alan = m; }
  // The user typing, then pressing Return; Escape.
  void yazVeGonder(const std::string& m) {
    alan = m;
    gonderildi();
  }
  void escape() { acik = false; }
  std::function<void()> gonderildi;
  bool acik = false;
  int gostermeler = 0;
  std::string alan;
};

class DurumOgesiSahte final : public DurumOgesi {
 public:
  void goster(const DurumOgesiTasarimi& t, std::function<void(const std::string&)> s) override {
    ++gostermeler;
    tasarim = t;
    secildi = std::move(s);
    gorunur = true;
  }
  void kaldir() override {
    ++kaldirmalar;
    gorunur = false;
  }
  DurumOgesiTasarimi tasarim;
  std::function<void(const std::string&)> secildi;
  bool gorunur = false;
  int gostermeler = 0, kaldirmalar = 0;
};

}  // namespace nevo::sahte
