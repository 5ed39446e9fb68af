#pragma once
#include <gtk/gtk.h>

#include "temel/sistem.hpp"

namespace nevo {

class SistemGtk final : public Sistem {
 public:
  explicit SistemGtk(GtkApplication* uygulama) : uygulama_(uygulama) {}
  void etkinlestir() override;
  void disaridaAc(const std::string& adres) override;
  void sonlandir() override;
  void klasordeGoster(const std::string& yol) override;
  std::optional<std::string> paketKimligi() const override;
  void hakkindaGoster() override;
  void gizle() override;
  void digerleriniGizle() override;
  std::optional<std::string> ciftTiklamaTercihi() const override;
  [[noreturn]] void olumcul(const std::string& neden) override;

 private:
  GtkApplication* uygulama_;
};

}  // namespace nevo
