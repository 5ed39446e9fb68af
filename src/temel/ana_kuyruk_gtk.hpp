#pragma once
#include <glib.h>

#include <deque>
#include <functional>

#include "temel/ana_kuyruk.hpp"

namespace nevo {

// The main queue over the GLib main context: posted work runs on a later turn of the
// loop, in posting order.
class AnaKuyrukGtk final : public AnaKuyruk {
 public:
  AnaKuyrukGtk() = default;
  AnaKuyrukGtk(const AnaKuyrukGtk&) = delete;
  AnaKuyrukGtk& operator=(const AnaKuyrukGtk&) = delete;
  ~AnaKuyrukGtk() override;

  void gonder(std::function<void()> is) override;
  void sonra(double saniye, std::function<void()> is) override;

 private:
  static gboolean bosalt(gpointer kuyruk);
  std::deque<std::function<void()>> bekleyen_;
  guint kaynak_ = 0;
};

}  // namespace nevo
