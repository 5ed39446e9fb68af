#pragma once
#include <glib.h>

#include <functional>

namespace nevo {

// A change spread over a duration on the main loop: `adim` gets the elapsed share, from 0
// to exactly 1 at the end, about once a frame, the first at once. Starting again replaces a
// running one.
class Canlandirma {
 public:
  using Adim = std::function<void(double oran)>;

  Canlandirma() = default;
  Canlandirma(const Canlandirma&) = delete;
  Canlandirma& operator=(const Canlandirma&) = delete;
  ~Canlandirma();

  void baslat(double sure, Adim adim);
  void durdur();  // a running change takes no further step

 private:
  static gboolean tik(gpointer canlandirma);
  Adim adim_;
  gint64 baslangic_ = 0;
  double sure_ = 0;
  guint kaynak_ = 0;
};

}  // namespace nevo
