#pragma once
#include <gtk/gtk.h>

#include <functional>

#include "app/pencere/perde.hpp"
#include "temel/canlandirma_gtk.hpp"
#include "temel/glib_gtk.hpp"

namespace nevo {

// The loading curtain: near black, the icon above the centre, a spinner below it.
class PerdeGtk final : public Perde {
 public:
  PerdeGtk();
  PerdeGtk(const PerdeGtk&) = delete;
  PerdeGtk& operator=(const PerdeGtk&) = delete;

  GtkWidget* parca() const { return GTK_WIDGET(kutu_.get()); }

  bool bagli() const override;
  void sondur(double sure, std::function<void()> bitince) override;
  void kaldir() override;
  void ort() override;

 private:
  GNesne<GtkOverlay> kutu_;
  GNesne<GtkOverlay> ust_;  // the container, while the curtain is out of it
  gint sira_ = 0;           // its place among the container's layers
  Canlandirma solma_;
};

}  // namespace nevo
