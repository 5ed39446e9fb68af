#pragma once
#include <memory>
#include <optional>
#include <string>

#include "temel/sistem.hpp"

namespace nevo {

// The login-item service's states, with the values macOS's login-item service uses.
// A login item that cannot name the running program says so.
inline constexpr const char* CALISAN_YOL_YOK = "çalışan uygulamanın yolu bulunamadı";

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

// What the status reply says of launch at login, read from the service once.
struct BaslangicDurumu {
  bool destekli = false;
  bool acik = false;
  std::optional<std::string> hata;
};

// Launch at login: no state of its own, every query asks the service.
class Baslangic {
 public:
  static constexpr const char* ONAY_BEKLIYOR =
      "macOS onay bekliyor: Sistem Ayarları › Genel › Giriş Öğeleri'nden Nevo'ye izin ver.";
  static constexpr const char* KABUL_EDILMEDI = "macOS bu kaydı kabul etmedi: ";

  Baslangic(GirisOgesi& servis, const Sistem& sistem) : servis_(servis), sistem_(sistem) {}

  bool destekli() const;
  bool acik() const;
  std::optional<std::string> hata() const;
  BaslangicDurumu durum() const;
  std::optional<std::string> ayarla(bool istenen);

 private:
  GirisOgesi& servis_;
  const Sistem& sistem_;
};

}  // namespace nevo

namespace nevo {

// The platform's login-item service.
std::unique_ptr<GirisOgesi> girisOgesiOlustur();

}  // namespace nevo
