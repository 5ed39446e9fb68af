#pragma once
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "temel/geometri.hpp"
#include "temel/pencere.hpp"
#include "app/perde.hpp"
#include "app/web_gorunum.hpp"

namespace nevo {

// The views of the container, back to front (Part 1.2, step 16).
enum class Katman { Arka, Web, Serit, Perde };

// What the platform builds in `pencereKur`, decided by the core.
struct PencereTasarimi {
  Olcu olcu;        // window, web view, curtain and container are created at this size
  Olcu enKucuk;     // minimum size
  double serit = 0;  // height of the title-bar band above the content layout rectangle
  std::string baslik;
  std::string kullaniciAraciAdi;
  std::string stilBetigi;  // injected at document start, main frame only
  std::vector<Katman> katmanlar;
};

// What the platform's window, web view and strip report to the application delegate.
class PencereOlaylari {
 public:
  virtual ~PencereOlaylari() = default;
  virtual void adresDegisti() = 0;                       // the web view's URL changed
  virtual void sayfaIslendi() = 0;                       // didCommit
  virtual void yuklemeBitti() = 0;                       // didFinish
  virtual void yuklemeBasarisiz(std::optional<std::string> adres) = 0;  // didFail…
  virtual bool gezinmeIzni(const std::optional<std::string>& adres) = 0;  // allow / cancel
  virtual void yeniPencereIstendi(const std::optional<std::string>& adres) = 0;
  virtual bool seritBasildi(int tiklamaSayisi) = 0;  // true: start a window drag
  virtual void buyutDugmesi() = 0;                   // the zoom button of the strip
  // A message posted to the handler "nevo", its body as JSON text (Part 2.1).
  virtual void userContentController(std::string_view govde) = 0;
};

struct PencereParcalari {
  std::unique_ptr<Pencere> pencere;
  std::unique_ptr<WebGorunum> web;
  std::unique_ptr<Perde> perde;
};

class PencereKurucu {
 public:
  virtual ~PencereKurucu() = default;
  // Builds window, web view, strip, curtain and backdrop; nothing is shown or loaded yet.
  virtual PencereParcalari kur(const PencereTasarimi& tasarim, PencereOlaylari& olaylar) = 0;
};

}  // namespace nevo
