#pragma once
#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "app/pencere/menu_modeli.hpp"
#include "fakes/sahte_pencere.hpp"
#include "temel/sistem.hpp"

namespace nevo::sahte {

struct OlumculHata : std::runtime_error {
  using std::runtime_error::runtime_error;
};

class SistemSahte final : public Sistem {
 public:
  explicit SistemSahte(Gunluk gunluk) : gunluk_(std::move(gunluk)) {}
  void etkinlestir() override { gunluk_->push_back("sistem.etkinlestir"); }
  void disaridaAc(const std::string& adres) override { disaridaAcilanlar.push_back(adres); }
  void sonlandir() override { ++sonlandirmalar; }
  void klasordeGoster(const std::string& yol) override { klasordeGosterilenler.push_back(yol); }
  std::vector<std::string> klasordeGosterilenler;
  std::optional<std::string> paketKimligi() const override {
    ++kimlikOkumalari;
    return kimlik;
  }
  void hakkindaGoster() override { gunluk_->push_back("sistem.hakkinda"); }
  void gizle() override { gunluk_->push_back("sistem.gizle"); }
  void digerleriniGizle() override { gunluk_->push_back("sistem.digerleriniGizle"); }
  std::optional<std::string> ciftTiklamaTercihi() const override {
    ++ciftTiklamaOkumalari;
    return ciftTiklama;
  }
  [[noreturn]] void olumcul(const std::string& neden) override { throw OlumculHata(neden); }

  std::optional<std::string> kimlik;
  std::optional<std::string> ciftTiklama;
  mutable int ciftTiklamaOkumalari = 0;
  mutable int kimlikOkumalari = 0;
  std::vector<std::string> disaridaAcilanlar;
  int sonlandirmalar = 0;

 private:
  Gunluk gunluk_;
};

class MenuKurucuSahte final : public MenuKurucu {
 public:
  explicit MenuKurucuSahte(Gunluk gunluk) : gunluk_(std::move(gunluk)) {}
  void kur(const std::vector<AltMenu>& menu) override {
    gunluk_->push_back("menu.kur");
    kurulan = menu;
    if (kurulunca) kurulunca();
  }
  std::vector<AltMenu> kurulan;
  std::function<void()> kurulunca;

 private:
  Gunluk gunluk_;
};

}  // namespace nevo::sahte
