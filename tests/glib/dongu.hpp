#pragma once
// Waiting on the default GLib main loop: every wait ends at an event, with a safety limit
// that fails the test instead of hanging it.
#include <glib.h>

#include <cmath>
#include <functional>
#include <memory>

namespace nevo::test {

// Far beyond any wait a passing test needs.
inline constexpr double GUVENLIK_SINIRI = 30.0;

inline guint milisaniye(double saniye) { return static_cast<guint>(std::lround(saniye * 1000)); }

// Turns the loop until `kosul` holds; false when the safety limit runs out first.
[[nodiscard]] inline bool bekle(const std::function<bool()>& kosul,
                                double sinir = GUVENLIK_SINIRI) {
  bool doldu = false;
  const guint bekci = g_timeout_add(
      milisaniye(sinir),
      +[](gpointer veri) -> gboolean {
        *static_cast<bool*>(veri) = true;
        return G_SOURCE_REMOVE;
      },
      &doldu);
  while (!kosul() && !doldu) g_main_context_iteration(nullptr, TRUE);
  if (!doldu) g_source_remove(bekci);
  return kosul();
}

// Turns the loop until a timer of `saniye` fires. Used only to show that nothing further
// happens in that span: GLib runs the timers in deadline order.
inline void sureBoyuncaDondur(double saniye) {
  bool bitti = false;
  g_timeout_add(
      milisaniye(saniye),
      +[](gpointer veri) -> gboolean {
        *static_cast<bool*>(veri) = true;
        return G_SOURCE_REMOVE;
      },
      &bitti);
  while (!bitti) g_main_context_iteration(nullptr, TRUE);
}

// One turn of the loop that does not wait: dispatches what is ready now.
inline void birTur() { g_main_context_iteration(nullptr, FALSE); }

// A GMainLoop on the default context that a callback ends with `bitir()`.
class Dongu {
 public:
  Dongu() : dongu_(g_main_loop_new(nullptr, FALSE)) {}

  void bitir() {
    bitti_ = true;
    g_main_loop_quit(dongu_.get());
  }

  // Runs until `bitir()`; false when the safety limit ran out first.
  [[nodiscard]] bool calistir(double sinir = GUVENLIK_SINIRI) {
    if (bitti_) return true;
    const guint bekci = g_timeout_add(
        milisaniye(sinir),
        +[](gpointer veri) -> gboolean {
          g_main_loop_quit(static_cast<GMainLoop*>(veri));
          return G_SOURCE_REMOVE;
        },
        dongu_.get());
    g_main_loop_run(dongu_.get());
    if (bitti_) g_source_remove(bekci);
    return bitti_;
  }

 private:
  struct Birak {
    void operator()(GMainLoop* dongu) const { g_main_loop_unref(dongu); }
  };
  std::unique_ptr<GMainLoop, Birak> dongu_;
  bool bitti_ = false;
};

}  // namespace nevo::test
