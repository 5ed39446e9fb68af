#pragma once
#include <glib.h>

#include <deque>
#include <functional>
#include <mutex>
#include <unordered_set>

#include "temel/ana_kuyruk.hpp"

namespace nevo {

// The main queue over the GLib main context: posted work runs on a later turn of the
// loop, in posting order; work posted while a turn runs waits for the next turn.
// Destroying the queue drops the work that has not run yet, timed work included, even
// from inside a piece of its own work.
class AnaKuyrukGtk final : public AnaKuyruk {
 public:
  AnaKuyrukGtk() = default;
  AnaKuyrukGtk(const AnaKuyrukGtk&) = delete;
  AnaKuyrukGtk& operator=(const AnaKuyrukGtk&) = delete;
  ~AnaKuyrukGtk() override;

  void gonder(std::function<void()> is) override;
  void sonra(double saniye, std::function<void()> is) override;

 private:
  struct Zamanli;
  static gboolean bosalt(gpointer kuyruk);
  static gboolean zamaniGeldi(gpointer zamanli);
  std::mutex kilit_;  // guards the pending work and its source, which any thread may post
  std::deque<std::function<void()>> bekleyen_;
  guint kaynak_ = 0;
  std::unordered_set<guint> zamanlilar_;
  bool* yikildi_ = nullptr;  // set while a turn runs, so the turn sees the queue go
};

}  // namespace nevo
