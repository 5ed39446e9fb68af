#pragma once
#include <optional>
#include <string>

#include "temel/sistem.hpp"

namespace nevo {

// The login-item service's states (Part 4.8), with SMAppService's values.
enum class GirisOgesiDurumu { kayitsiz = 0, acik = 1, onayBekliyor = 2, bulunamadi = 3 };

// The platform's login-item service of the running application.
class GirisOgesi {
 public:
  virtual ~GirisOgesi() = default;
  virtual bool sistemDestekler() const = 0;  // macOS 13 or later; always on Linux
  virtual GirisOgesiDurumu durum() const = 0;
  // Register / unregister; a failure is returned as the error's description.
  virtual std::optional<std::string> kaydet() = 0;
  virtual std::optional<std::string> kaydiSil() = 0;
};

// Launch at login (Part 4.8): no state of its own, every query asks the service.
class Baslangic {
 public:
  static constexpr const char* ONAY_BEKLIYOR =
      "macOS onay bekliyor: Sistem Ayarları › Genel › Giriş Öğeleri'nden Nevo'ye izin ver.";
  static constexpr const char* KABUL_EDILMEDI = "macOS bu kaydı kabul etmedi: ";

  Baslangic(GirisOgesi& servis, const Sistem& sistem) : servis_(servis), sistem_(sistem) {}

  bool destekli() const;
  bool acik() const;
  std::optional<std::string> hata() const;
  std::optional<std::string> ayarla(bool istenen);

 private:
  GirisOgesi& servis_;
  const Sistem& sistem_;
};

}  // namespace nevo
