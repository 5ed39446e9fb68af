#pragma once
#include <webkit2/webkit2.h>

#include <condition_variable>
#include <memory>
#include <mutex>
#include <thread>

#include "temel/glib_gtk.hpp"

namespace nevo {

// Spelling in the user's language and English, by the engine's own checker. Its
// dictionaries take some 300–450 ms to load for Turkish (8 ms for English): they load on a
// thread of their own at a low priority, so that neither the launch nor the user's first
// clicks and keys wait on them, and spell checking turns on once they are in. A context
// menu asked for before that waits for them, so that it offers the word's suggestions.
class YazimDenetimiGtk {
 public:
  YazimDenetimiGtk() = default;
  YazimDenetimiGtk(const YazimDenetimiGtk&) = delete;
  YazimDenetimiGtk& operator=(const YazimDenetimiGtk&) = delete;
  ~YazimDenetimiGtk();  // waits for a load under way

  void baslat(WebKitWebContext* baglam);
  // Turns spell checking on now, once a load under way has finished; nothing before
  // `baslat`.
  void hazirOlsun();

 private:
  struct Durum {
    GNesne<WebKitWebContext> baglam;
    std::mutex kilit;
    std::condition_variable yuklendi;
    bool bitti = false;
    bool acildi = false;
  };
  static void ac(Durum& durum);
  std::shared_ptr<Durum> durum_;
  std::thread yukleyici_;
};

}  // namespace nevo
