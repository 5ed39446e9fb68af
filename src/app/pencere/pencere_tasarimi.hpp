#pragma once
#include <string>
#include <vector>

#include "app/pencere/dugme_duzeni.hpp"
#include "temel/geometri.hpp"

namespace nevo {

// The views of the container, back to front.
enum class Katman { Arka, Web, Serit, Perde };

// What the platform builds in `pencereKur`, decided by the core.
struct PencereTasarimi {
  Olcu olcu;         // window, web view, curtain and container are created at this size
  Olcu enKucuk;      // minimum size
  double serit = 0;  // height of the title-bar band above the content layout rectangle
  std::string baslik;
  std::string kullaniciAraciAdi;
  std::string stilBetigi;  // injected at document start, main frame only
  std::vector<Katman> katmanlar;
  // The name under which the window's frame is remembered between launches, where the
  // platform keeps one.
  std::string cerceveKayitAdi;
  DugmeDuzeni dugmeler;  // the window buttons the strip carries, where the platform draws them
  std::string uygulamaAdresi;  // the application's address: its top page is given the devices
};

}  // namespace nevo
