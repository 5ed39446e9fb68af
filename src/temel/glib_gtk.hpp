#pragma once
#include <glib-object.h>

#include <memory>
#include <utility>

namespace nevo {

struct GNesneBirak {
  void operator()(gpointer nesne) const {
    if (nesne != nullptr) g_object_unref(nesne);
  }
};
template <class T>
using GNesne = std::unique_ptr<T, GNesneBirak>;

// Adopts a reference the caller already owns (the result of a *_new or *_finish call).
template <class T>
GNesne<T> sahiplen(T* nesne) {
  return GNesne<T>(nesne);
}

// Takes a reference of our own; a floating reference (a fresh widget) is sunk.
template <class T>
GNesne<T> paylas(T* nesne) {
  return GNesne<T>(static_cast<T*>(g_object_ref_sink(nesne)));
}

struct GBellekBirak {
  void operator()(gpointer bellek) const { g_free(bellek); }
};
using GMetin = std::unique_ptr<char, GBellekBirak>;

struct AnahtarDosyasiBirak {
  void operator()(GKeyFile* dosya) const { g_key_file_unref(dosya); }
};
using AnahtarDosyasi = std::unique_ptr<GKeyFile, AnahtarDosyasiBirak>;

struct DegiskenBirak {
  void operator()(GVariant* deger) const { g_variant_unref(deger); }
};
using Degisken = std::unique_ptr<GVariant, DegiskenBirak>;

// Connects a C++ callable to a GObject signal of the given C signature (without the
// trailing user-data pointer). The callable lives as long as the connection.
template <class Imza>
struct Sinyal;
template <class R, class... A>
struct Sinyal<R(A...)> {
  template <class F>
  static gulong bagla(gpointer nesne, const char* ad, F islev) {
    R (*cagir)(A..., gpointer) = +[](A... argumanlar, gpointer veri) noexcept -> R {
      return (*static_cast<F*>(veri))(argumanlar...);
    };
    return g_signal_connect_data(
        nesne, ad, reinterpret_cast<GCallback>(cagir), new F(std::move(islev)),
        +[](gpointer veri, GClosure*) { delete static_cast<F*>(veri); }, GConnectFlags{});
  }
};

}  // namespace nevo
