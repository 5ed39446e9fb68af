#include "temel/ana_kuyruk_gtk.hpp"

#include <algorithm>
#include <cmath>
#include <utility>

namespace nevo {

struct AnaKuyrukGtk::Zamanli {
  AnaKuyrukGtk* kuyruk;
  std::function<void()> is;
  guint kaynak = 0;
};

AnaKuyrukGtk::~AnaKuyrukGtk() {
  if (yikildi_ != nullptr) *yikildi_ = true;
  {
    const std::lock_guard kilit(kilit_);
    if (kaynak_ != 0) g_source_remove(kaynak_);
  }
  // Removing a source frees its work without running it.
  for (const guint kaynak : std::exchange(zamanlilar_, {})) g_source_remove(kaynak);
}

void AnaKuyrukGtk::gonder(std::function<void()> is) {
  const std::lock_guard kilit(kilit_);
  bekleyen_.push_back(std::move(is));
  if (kaynak_ == 0) kaynak_ = g_idle_add_full(G_PRIORITY_DEFAULT, &bosalt, this, nullptr);
}

gboolean AnaKuyrukGtk::bosalt(gpointer veri) {
  auto* kuyruk = static_cast<AnaKuyrukGtk*>(veri);
  // Work posted while this turn runs waits for the next turn.
  std::deque<std::function<void()>> isler;
  {
    const std::lock_guard kilit(kuyruk->kilit_);
    isler = std::exchange(kuyruk->bekleyen_, {});
  }
  bool yikildi = false;
  kuyruk->yikildi_ = &yikildi;
  for (auto& is : isler) {
    is();
    if (yikildi) return G_SOURCE_REMOVE;  // the work destroyed the queue; drop the rest
  }
  kuyruk->yikildi_ = nullptr;
  const std::lock_guard kilit(kuyruk->kilit_);
  if (!kuyruk->bekleyen_.empty()) return G_SOURCE_CONTINUE;
  kuyruk->kaynak_ = 0;
  return G_SOURCE_REMOVE;
}

void AnaKuyrukGtk::sonra(double saniye, std::function<void()> is) {
  // Not before `saniye` seconds; a negative or unknown delay is none.
  const double sinirli = saniye > 0 ? std::min(saniye * 1000, double{G_MAXUINT}) : 0.0;
  const auto ms = static_cast<guint>(std::lround(sinirli));
  auto* zamanli = new Zamanli{this, std::move(is)};
  zamanli->kaynak = g_timeout_add_full(
      G_PRIORITY_DEFAULT, ms, &zamaniGeldi, zamanli,
      +[](gpointer veri) { delete static_cast<Zamanli*>(veri); });
  zamanlilar_.insert(zamanli->kaynak);
}

gboolean AnaKuyrukGtk::zamaniGeldi(gpointer veri) {
  auto* zamanli = static_cast<Zamanli*>(veri);
  zamanli->kuyruk->zamanlilar_.erase(zamanli->kaynak);
  zamanli->is();  // may destroy the queue; the source goes after this returns
  return G_SOURCE_REMOVE;
}

std::unique_ptr<AnaKuyruk> anaKuyrukOlustur() { return std::make_unique<AnaKuyrukGtk>(); }

}  // namespace nevo
