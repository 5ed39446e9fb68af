#pragma once
#include <glib-object.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

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
  if (nesne == nullptr) return GNesne<T>();
  return GNesne<T>(static_cast<T*>(g_object_ref_sink(nesne)));
}

struct GBellekBirak {
  void operator()(gpointer bellek) const { g_free(bellek); }
};
using GMetin = std::unique_ptr<char, GBellekBirak>;

// Texts as the array GLib and GTK take, ended by a null; it points into `metinler`, which
// must outlive it.
inline std::vector<const char*> metinDizisi(const std::vector<std::string>& metinler) {
  std::vector<const char*> dizi;
  for (const auto& metin : metinler) dizi.push_back(metin.c_str());
  dizi.push_back(nullptr);
  return dizi;
}

struct AnahtarDosyasiBirak {
  void operator()(GKeyFile* dosya) const { g_key_file_unref(dosya); }
};
using AnahtarDosyasi = std::unique_ptr<GKeyFile, AnahtarDosyasiBirak>;

struct DegiskenBirak {
  void operator()(GVariant* deger) const { g_variant_unref(deger); }
};
using Degisken = std::unique_ptr<GVariant, DegiskenBirak>;

// One signal connection kept for the holder's lifetime: the destructor disconnects it
// while the object is alive. Only a weak reference is held, so the object may die first
// (its connections go with it) and the holder is still safe to destroy.
class SinyalBaglantisi {
 public:
  SinyalBaglantisi() noexcept { g_weak_ref_init(&nesne_, nullptr); }
  // Takes over a connection made elsewhere (the result of Sinyal<...>::bagla).
  SinyalBaglantisi(gpointer nesne, gulong kimlik) noexcept
      : kimlik_(nesne != nullptr ? kimlik : 0) {
    g_weak_ref_init(&nesne_, kimlik_ != 0 ? nesne : nullptr);
  }
  SinyalBaglantisi(SinyalBaglantisi&& diger) noexcept : SinyalBaglantisi() { devral(diger); }
  SinyalBaglantisi& operator=(SinyalBaglantisi&& diger) noexcept {
    if (this != &diger) {
      kes();
      devral(diger);
    }
    return *this;
  }
  SinyalBaglantisi(const SinyalBaglantisi&) = delete;
  SinyalBaglantisi& operator=(const SinyalBaglantisi&) = delete;
  ~SinyalBaglantisi() {
    kes();
    g_weak_ref_clear(&nesne_);
  }

  // Disconnects now; nothing happens when the object or the handler is already gone.
  void kes() noexcept {
    if (gpointer nesne = g_weak_ref_get(&nesne_)) {
      if (g_signal_handler_is_connected(nesne, kimlik_))
        g_signal_handler_disconnect(nesne, kimlik_);
      g_weak_ref_set(&nesne_, nullptr);
      g_object_unref(nesne);
    }
    kimlik_ = 0;
  }

  // Whether the object is alive and the handler still connected.
  bool bagli() const noexcept {
    gpointer nesne = g_weak_ref_get(&nesne_);
    if (nesne == nullptr) return false;
    const bool bagli = g_signal_handler_is_connected(nesne, kimlik_) != FALSE;
    g_object_unref(nesne);
    return bagli;
  }

  gulong kimlik() const noexcept { return kimlik_; }

 private:
  void devral(SinyalBaglantisi& diger) noexcept {
    gpointer nesne = g_weak_ref_get(&diger.nesne_);
    kimlik_ = nesne != nullptr ? diger.kimlik_ : 0;
    g_weak_ref_set(&nesne_, nesne);
    g_weak_ref_set(&diger.nesne_, nullptr);
    diger.kimlik_ = 0;
    if (nesne != nullptr) g_object_unref(nesne);
  }

  mutable GWeakRef nesne_;
  gulong kimlik_ = 0;
};

// Connects a C++ callable to a GObject signal of the given C signature (without the
// trailing user-data pointer). The callable lives as long as the connection; when the
// signal name is unknown nothing is connected, the callable is freed and 0 is returned.
template <class Imza>
struct Sinyal;
template <class R, class... A>
struct Sinyal<R(A...)> {
  template <class F>
  static gulong bagla(gpointer nesne, const char* ad, F islev) {
    using Cagri = R (*)(A..., gpointer);
    Cagri cagir = +[](A... argumanlar, gpointer veri) noexcept -> R {
      return (*static_cast<F*>(veri))(argumanlar...);
    };
    GClosure* kapanis = g_cclosure_new(
        reinterpret_cast<GCallback>(cagir), new F(std::move(islev)),
        +[](gpointer veri, GClosure*) { delete static_cast<F*>(veri); });
    // Our own reference frees the callable even when the connection is refused.
    g_closure_ref(kapanis);
    g_closure_sink(kapanis);
    const gulong kimlik = g_signal_connect_closure(nesne, ad, kapanis, FALSE);
    g_closure_unref(kapanis);
    return kimlik;
  }

  // The same connection, undone when the returned holder is destroyed.
  template <class F>
  [[nodiscard]] static SinyalBaglantisi bagliTut(gpointer nesne, const char* ad, F islev) {
    const gulong kimlik = bagla(nesne, ad, std::move(islev));
    return SinyalBaglantisi(nesne, kimlik);
  }
};

// The connections of an object whose handlers reach into it: every one is undone when the
// object goes, so no handler runs on an object that is gone, whichever dies first.
class SinyalBaglantilari {
 public:
  template <class Imza, class F>
  void bagla(gpointer nesne, const char* ad, F islev) {
    baglantilar_.push_back(Sinyal<Imza>::bagliTut(nesne, ad, std::move(islev)));
  }

 private:
  std::vector<SinyalBaglantisi> baglantilar_;
};

}  // namespace nevo
