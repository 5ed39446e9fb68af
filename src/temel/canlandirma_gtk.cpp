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

// A step's frame reaches the screen about a frame after the step: each step shows the
// share of that moment, and the first comes at once.
void Canlandirma::baslat(double sure, Adim adim) {
  adim_ = std::move(adim);
  sure_ = sure;
  baslangic_ = g_get_monotonic_time() - KARE_MS * G_TIME_SPAN_MILLISECOND;
  if (kaynak_ != 0) g_source_remove(kaynak_);
  GSource* kaynak = g_timeout_source_new(KARE_MS);
  g_source_set_callback(kaynak, &Canlandirma::tik, this, nullptr);
  g_source_set_ready_time(kaynak, 0);
  kaynak_ = g_source_attach(kaynak, nullptr);
  g_source_unref(kaynak);
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
