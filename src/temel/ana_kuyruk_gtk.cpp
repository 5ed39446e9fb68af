#include "temel/ana_kuyruk_gtk.hpp"

#include <cmath>
#include <utility>

namespace nevo {

AnaKuyrukGtk::~AnaKuyrukGtk() {
  if (kaynak_ != 0) g_source_remove(kaynak_);
}

void AnaKuyrukGtk::gonder(std::function<void()> is) {
  bekleyen_.push_back(std::move(is));
  if (kaynak_ == 0) kaynak_ = g_idle_add_full(G_PRIORITY_DEFAULT, &bosalt, this, nullptr);
}

gboolean AnaKuyrukGtk::bosalt(gpointer veri) {
  auto* kuyruk = static_cast<AnaKuyrukGtk*>(veri);
  // Work posted while this turn runs waits for the next turn.
  auto isler = std::exchange(kuyruk->bekleyen_, {});
  for (auto& is : isler) is();
  if (!kuyruk->bekleyen_.empty()) return G_SOURCE_CONTINUE;
  kuyruk->kaynak_ = 0;
  return G_SOURCE_REMOVE;
}

void AnaKuyrukGtk::sonra(double saniye, std::function<void()> is) {
  using Is = std::function<void()>;
  const auto ms = static_cast<guint>(std::lround(std::max(0.0, saniye) * 1000));
  g_timeout_add_full(
      G_PRIORITY_DEFAULT, ms,
      +[](gpointer veri) -> gboolean {
        (*static_cast<Is*>(veri))();
        return G_SOURCE_REMOVE;
      },
      new Is(std::move(is)), +[](gpointer veri) { delete static_cast<Is*>(veri); });
}

}  // namespace nevo
