#include "temel/canlandirma_gtk.hpp"

#include <algorithm>
#include <utility>

namespace nevo {
namespace {
constexpr guint KARE_MS = 16;
}

Canlandirma::~Canlandirma() {
  if (kaynak_ != 0) g_source_remove(kaynak_);
}

void Canlandirma::baslat(double sure, Adim adim) {
  adim_ = std::move(adim);
  sure_ = sure;
  baslangic_ = g_get_monotonic_time();
  if (kaynak_ == 0) kaynak_ = g_timeout_add(KARE_MS, &Canlandirma::tik, this);
}

void Canlandirma::durdur() {
  if (kaynak_ != 0) g_source_remove(std::exchange(kaynak_, 0));
  adim_ = nullptr;
}

gboolean Canlandirma::tik(gpointer veri) {
  auto* c = static_cast<Canlandirma*>(veri);
  const double gecen = static_cast<double>(g_get_monotonic_time() - c->baslangic_) / 1e6;
  const double oran = c->sure_ > 0 ? std::clamp(gecen / c->sure_, 0.0, 1.0) : 1.0;
  if (oran >= 1.0) c->kaynak_ = 0;
  Adim adim = c->adim_;  // the step may start the next change
  adim(oran);
  return oran >= 1.0 ? G_SOURCE_REMOVE : G_SOURCE_CONTINUE;
}

}  // namespace nevo
