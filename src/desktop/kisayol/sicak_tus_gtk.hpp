#pragma once
#include <gdk/gdk.h>

#include <cstdint>
#include <functional>
#include <optional>

#include "desktop/kisayol/sicak_tus.hpp"

namespace nevo {

// The hot key under X11: a passive grab of the key on the root window, also with Caps Lock
// and Num Lock held, that reports at once a combination another client already holds.
class SicakTusX11 final : public SicakTus {
 public:
  explicit SicakTusX11(GdkDisplay* ekran) : ekran_(ekran) {}
  SicakTusX11(const SicakTusX11&) = delete;
  SicakTusX11& operator=(const SicakTusX11&) = delete;
  ~SicakTusX11() override;

  bool destekli() const override { return true; }
  void isleyiciKur(std::function<void()> basildi) override;
  void kaydet(std::uint32_t kod, std::uint32_t mod, Sonuc sonuc) override;
  void kaldir() override;

 private:
  bool tak(std::uint32_t kod, std::uint32_t mod);
  static GdkFilterReturn suz(GdkXEvent* olay, GdkEvent*, gpointer kendisi);
  void tut(bool tut);

  GdkDisplay* ekran_;
  std::function<void()> basildi_;
  bool suzgecVar_ = false;
  struct Kayit {
    unsigned tusKodu;
    unsigned durum;
  };
  std::optional<Kayit> kayit_;
};

// No global hot key on this desktop: every registration is refused.
class SicakTusYok final : public SicakTus {
 public:
  bool destekli() const override { return false; }
  void isleyiciKur(std::function<void()>) override {}
  void kaydet(std::uint32_t, std::uint32_t, Sonuc sonuc) override { sonuc(false); }
  void kaldir() override {}
};

}  // namespace nevo
