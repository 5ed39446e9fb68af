#pragma once
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "app/pencere/perde.hpp"
#include "app/pencere/web_gorunum.hpp"
#include "temel/pencere.hpp"

namespace nevo::sahte {

// A record of calls shared by several fakes, to check their order.
using Gunluk = std::shared_ptr<std::vector<std::string>>;

class PencereSahte final : public Pencere {
 public:
  explicit PencereSahte(Gunluk ortakGunluk = std::make_shared<std::vector<std::string>>())
      : gunluk(std::move(ortakGunluk)) {}
  void boyutlanabilir(bool evet) override { yaz("boyutlanabilir"), boyutlanabilirMi = evet; }
  void tamEkranIzni(bool evet) override { yaz("tamEkranIzni"), tamEkranIzinli = evet; }
  void icerikBoyutu(Olcu olcu) override { yaz("icerikBoyutu"), icerik = olcu; }
  void ortala() override { yaz("ortala"); }
  void oneGetir() override { yaz("oneGetir"), gorunurMu = true; }
  bool gorunur() const override { return gorunurMu; }
  void kucult() override { yaz("kucult"); }
  Cerceve cerceve() const override { return suanki; }
  std::optional<Cerceve> ekranAlani() const override { return ekran; }
  void cerceveyiCanlandir(Cerceve hedef, double sure) override {
    yaz("cerceveyiCanlandir");
    canlandirmalar.emplace_back(hedef, sure);
    suanki = hedef;
  }
  void kapat() override { yaz("kapat"), gorunurMu = false; }
  void tamEkranDegistir() override { yaz("tamEkranDegistir"); }

  int sayi(const std::string& ad) const {
    int n = 0;
    for (const auto& g : *gunluk) n += g == "pencere." + ad;
    return n;
  }

  Gunluk gunluk;
  bool boyutlanabilirMi = false;
  bool tamEkranIzinli = false;
  bool gorunurMu = false;
  Olcu icerik;
  Cerceve suanki{100, 50, 880, 820};
  std::optional<Cerceve> ekran = Cerceve{0, 0, 1600, 1000};
  std::vector<std::pair<Cerceve, double>> canlandirmalar;

 private:
  int yaz(const std::string& ad) {
    gunluk->push_back("pencere." + ad);
    return 0;
  }
};

class WebSahte final : public WebGorunum {
 public:
  WebSahte() = default;
  explicit WebSahte(Gunluk g) : gunluk_(std::move(g)) {}
  std::optional<std::string> adres() const override { return suankiAdres; }
  void adresYukle(const std::string& a) override {
    if (gunluk_) gunluk_->push_back("web.adresYukle");
    yuklenenler.push_back(a);
  }
  void htmlYukle(const std::string& html) override { htmller.push_back(html); }
  void yenile() override { ++yenilemeler; }
  void betikCalistir(const std::string& betik) override { betikler.push_back(betik); }
  void betikSor(const std::string& betik, Cevap cevap) override {
    sorular.emplace_back(betik, std::move(cevap));
  }
  void betikBekle(const std::string& govde, Cevap cevap) override {
    beklemeler.emplace_back(govde, std::move(cevap));
  }
  void duzenle(const std::string& komut) override { duzenlemeler.push_back(komut); }
  void sureciBitir() override { ++bitirilenSurecler; }
  void yakinlik(double oran) override { yakinliklar.push_back(oran); }
  void yazdir() override { ++yazdirmalar; }
  void yazimDenetiminiBaslat() override { ++yazimBaslatmalari; }

  // Settles the oldest awaited function.
  void beklemeyiBitir(std::optional<bool> deger) {
    auto bekleme = std::move(beklemeler.front());
    beklemeler.erase(beklemeler.begin());
    bekleme.second(deger);
  }

  // Answers the oldest open question.
  void cevapla(std::optional<bool> deger) {
    auto soru = std::move(sorular.front());
    sorular.erase(sorular.begin());
    soru.second(deger);
  }

  std::optional<std::string> suankiAdres;
  std::vector<std::string> yuklenenler, htmller, betikler, duzenlemeler;
  std::vector<std::pair<std::string, Cevap>> sorular, beklemeler;
  int yenilemeler = 0;
  int bitirilenSurecler = 0;
  std::vector<double> yakinliklar;
  int yazdirmalar = 0;
  int yazimBaslatmalari = 0;

 private:
  Gunluk gunluk_;  // where loads are logged, when given
};

class PerdeSahte final : public Perde {
 public:
  bool bagli() const override { return bagliMi; }
  void sondur(double sure, std::function<void()> bitince) override {
    sondurmeler.push_back(sure);
    sondurmeSonu = std::move(bitince);
  }
  void kaldir() override {
    ++kaldirmalar;
    bagliMi = false;
  }
  void ort() override {
    ++ortmeler;
    bagliMi = true;
  }
  void sondurmeyiBitir() {
    auto son = std::move(sondurmeSonu);
    sondurmeSonu = nullptr;
    if (son) son();
  }

  bool bagliMi = true;
  std::vector<double> sondurmeler;
  std::function<void()> sondurmeSonu;
  int kaldirmalar = 0;
  int ortmeler = 0;
};

}  // namespace nevo::sahte
