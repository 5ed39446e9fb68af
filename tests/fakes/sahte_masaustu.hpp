#pragma once
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "agent/eslestirme.hpp"
#include "bridge/bildirim.hpp"
#include "bridge/dosya_kaydet.hpp"
#include "bridge/sayfa_yolu.hpp"
#include "desktop/baslangic.hpp"
#include "desktop/tercih.hpp"
#include "desktop/uyku_engeli.hpp"
#include "fakes/sahte_pencere.hpp"

namespace nevo::sahte {

// A typed store like NSUserDefaults: a key holds an integer, a text or a boolean.
class TercihDeposuSahte final : public TercihDeposu {
 public:
  using Deger = std::variant<std::int64_t, std::string, bool, double>;
  std::optional<std::int64_t> tamsayi(const std::string& a) const override {
    return al<std::int64_t>(a);
  }
  // As the user defaults read a value as an integer.
  std::int64_t duzTamsayi(const std::string& a) const override {
    ++*okumalar;
    const auto b = degerler.find(a);
    if (b == degerler.end()) return 0;
    if (const auto* d = std::get_if<std::int64_t>(&b->second)) return *d;
    if (const auto* d = std::get_if<bool>(&b->second)) return *d ? 1 : 0;
    if (const auto* d = std::get_if<double>(&b->second)) return static_cast<std::int64_t>(*d);
    return duzTamsayiOku(std::get<std::string>(b->second));
  }
  std::optional<std::string> metin(const std::string& a) const override {
    return al<std::string>(a);
  }
  std::optional<bool> mantiksal(const std::string& a) const override { return al<bool>(a); }
  void tamsayiYaz(const std::string& a, std::int64_t d) override { degerler[a] = d; }
  void metinYaz(const std::string& a, const std::string& d) override { degerler[a] = d; }
  void mantiksalYaz(const std::string& a, bool d) override { degerler[a] = d; }
  std::unique_ptr<TercihDeposu> anlik() const override {
    ++*anliklar;
    auto kopya = std::make_unique<TercihDeposuSahte>(*this);
    kopya->okumalar = std::make_shared<int>(0);
    return kopya;
  }
  std::map<std::string, Deger> degerler;
  // Reads of this store itself and copies taken of it (a copy counts its own reads).
  std::shared_ptr<int> okumalar = std::make_shared<int>(0);
  std::shared_ptr<int> anliklar = std::make_shared<int>(0);

 private:
  template <class T>
  std::optional<T> al(const std::string& a) const {
    ++*okumalar;
    auto b = degerler.find(a);
    if (b == degerler.end() || !std::holds_alternative<T>(b->second)) return std::nullopt;
    return std::get<T>(b->second);
  }
};

// Answers at once unless `ertele` is set; then `cevapla` answers the oldest request.
class GucKilidiSahte final : public GucKilidi {
 public:
  void al(const std::string& neden, Cevap cevap) override {
    nedenler.push_back(neden);
    bekleyenler.push_back(std::move(cevap));
    if (!ertele) cevapla();
  }
  void cevapla() {
    Cevap cevap = std::move(bekleyenler.front());
    bekleyenler.erase(bekleyenler.begin());
    if (reddet) {
      cevap(0, false);
      return;
    }
    tutulan = ++sonKimlik;
    sonCevap = cevap;
    cevap(tutulan, true);
  }
  void kaybet() {
    const std::uint32_t kaybolan = tutulan;
    tutulan = 0;
    sonCevap(kaybolan, false);
  }
  void birak(std::uint32_t kimlik) override {
    birakilanlar.push_back(kimlik);
    if (kimlik == tutulan) tutulan = 0;
  }
  bool reddet = false;
  bool ertele = false;
  std::vector<Cevap> bekleyenler;
  Cevap sonCevap;
  std::uint32_t tutulan = 0, sonKimlik = 0;
  std::vector<std::string> nedenler;
  std::vector<std::uint32_t> birakilanlar;
};

class GirisOgesiSahte final : public GirisOgesi {
 public:
  bool sistemDestekler() const override { return destekler; }
  GirisOgesiDurumu durum() const override {
    ++durumOkumalari;
    return suanki;
  }
  std::optional<std::string> kaydet() override {
    ++kayitlar;
    if (hata) return hata;
    suanki = kayittanSonra;
    return std::nullopt;
  }
  std::optional<std::string> kaydiSil() override {
    ++silmeler;
    if (hata) return hata;
    suanki = GirisOgesiDurumu::kayitsiz;
    return std::nullopt;
  }
  bool destekler = true;
  GirisOgesiDurumu suanki = GirisOgesiDurumu::kayitsiz;
  GirisOgesiDurumu kayittanSonra = GirisOgesiDurumu::acik;
  std::optional<std::string> hata;
  int kayitlar = 0, silmeler = 0;
  mutable int durumOkumalari = 0;
};

class BildirimMerkeziSahte final : public BildirimMerkezi {
 public:
  struct Gonderilen {
    std::string baslik, govde, kimlik;
  };
  void yetki(std::function<void(BildirimYetkisi)> bitti) override {
    ++yetkiOkumalari;
    bitti(suanki);
  }
  void izinIste(std::function<void()> bitti) override {
    ++istemler;
    if (suanki == BildirimYetkisi::belirlenmedi) {
      ++sorulanlar;  // the system prompts only when not yet determined
      suanki = kullaniciCevabi;
    }
    bekleyenIzin = std::move(bitti);
  }
  void izinCevabiniVer() { std::exchange(bekleyenIzin, nullptr)(); }
  void gonder(const std::string& b, const std::string& g, const std::string& k) override {
    gonderilenler.push_back({b, g, k});
  }
  struct IsBildirimi {
    std::string baslik, govde, kimlik, dugme;
    std::function<void()> tiklaninca;
  };
  void isBildirimi(const std::string& b, const std::string& g, const std::string& k,
                   const std::string& d, std::function<void()> t) override {
    isBildirimleri.push_back({b, g, k, d, std::move(t)});
  }
  void bildirimiGeriCek(const std::string& k) override { geriCekilenler.push_back(k); }
  std::vector<IsBildirimi> isBildirimleri;
  std::vector<std::string> geriCekilenler;
  void ayarlariAc() override { ++ayarAcmalar; }
  void temsilciOl(std::function<void()> t, const std::vector<std::string>& d) override {
    tiklandi = std::move(t);
    dugmeler = d;
  }
  std::vector<std::string> dugmeler;

  BildirimYetkisi suanki = BildirimYetkisi::belirlenmedi;
  BildirimYetkisi kullaniciCevabi = BildirimYetkisi::yetkili;
  std::function<void()> bekleyenIzin, tiklandi;
  std::vector<Gonderilen> gonderilenler;
  int yetkiOkumalari = 0, istemler = 0, sorulanlar = 0, ayarAcmalar = 0;
};

class KayitPaneliSahte final : public KayitPaneli {
 public:
  void ac(const std::string& ad, std::function<void(std::optional<std::string>)> b) override {
    onerilenler.push_back(ad);
    bitti = std::move(b);
  }
  std::vector<std::string> onerilenler;
  std::function<void(std::optional<std::string>)> bitti;
};

class EslestirmeSahte final : public Eslestirme {
 public:
  void ajanEslestir(const std::string& kod, Bitince b) override {
    kodlar.push_back(kod);
    bitinceler.push_back(std::move(b));
  }
  std::vector<std::string> kodlar;
  std::vector<Bitince> bitinceler;
};

// The bridge's road to the page: the scripts it sends, and the main window it reports.
class SayfaYoluSahte final : public SayfaYolu {
 public:
  void sayfayaGonder(const std::string& b) override {
    betikler.push_back(b);
    if (gunluk) gunluk->push_back("sayfa:" + b);
  }
  Pencere* anaPencere() override { return pencere; }
  std::vector<std::string> betikler;
  Pencere* pencere = nullptr;
  std::shared_ptr<std::vector<std::string>> gunluk;  // also logs "sayfa:<script>" when set
};

}  // namespace nevo::sahte
