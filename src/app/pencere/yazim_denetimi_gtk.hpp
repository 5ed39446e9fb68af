#pragma once
#include <webkit2/webkit2.h>

#include <condition_variable>
#include <memory>
#include <mutex>
#include <thread>

#include "app/pencere/yazim_baslangici.hpp"
#include "temel/glib_gtk.hpp"

namespace nevo {

// Spelling in the user's language and English, by the engine's own checker. Its
// dictionaries take some 300–450 ms and 35 MiB for Turkish (8 ms and 1 MiB for English):
// they load only once spelling is allowed and a field that takes text has had the focus,
// on a thread of their own at a low priority, so that neither the launch nor the user's
// clicks and keys wait on them; spell checking turns on once they are in. A context menu
// asked for before that waits for them, so that it offers the word's suggestions.
class YazimDenetimiGtk {
 public:
  YazimDenetimiGtk() = default;
  YazimDenetimiGtk(const YazimDenetimiGtk&) = delete;
  YazimDenetimiGtk& operator=(const YazimDenetimiGtk&) = delete;
  ~YazimDenetimiGtk();  // waits for a load under way

  void izinVer(WebKitWebContext* baglam);
  void odaklandi();  // a field that takes text has the focus
  // Turns spell checking on now, once a load under way has finished; nothing before a load
  // has started.
  void hazirOlsun();

 private:
  void baslat();
  struct Durum {
    GNesne<WebKitWebContext> baglam;
    std::mutex kilit;
    std::condition_variable yuklendi;
    bool bitti = false;
    bool acildi = false;
  };
  static void ac(Durum& durum);
  GNesne<WebKitWebContext> baglam_;
  YazimBaslangici baslangic_;
  std::shared_ptr<Durum> durum_;
  std::thread yukleyici_;
};

}  // namespace nevo
