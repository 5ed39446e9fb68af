#pragma once
#include <functional>
#include <optional>
#include <string>

namespace nevo {

// A main page load that gets no answer within this many seconds fails (and the offline
// page shows), as a request with this time-out does.
inline constexpr double ISTEK_ZAMAN_ASIMI = 60;

// The main web view, as the core drives it.
class WebGorunum {
 public:
  // A script's reply: the boolean it returned, or empty for any other value or an error.
  using Cevap = std::function<void(std::optional<bool>)>;

  virtual ~WebGorunum() = default;
  virtual std::optional<std::string> adres() const = 0;
  virtual void adresYukle(const std::string& adres) = 0;  // times out after ISTEK_ZAMAN_ASIMI
  virtual void htmlYukle(const std::string& html) = 0;    // no base address: "about:blank"
  virtual void yenile() = 0;
  virtual void betikCalistir(const std::string& betik) = 0;  // no completion
  virtual void betikSor(const std::string& betik, Cevap cevap) = 0;
  // Runs `govde` as the body of an async function in the page and replies once its
  // promise settles: the boolean it resolved to, or empty for any other value or an error.
  virtual void betikBekle(const std::string& govde, Cevap cevap) = 0;
  // An editing command by its WebKit name: "Undo", "Redo", "Cut", "Copy", "Paste",
  // "SelectAll".
  virtual void duzenle(const std::string& komut) = 0;
  // Ends the web process that shows the page; the view stays and a later load starts a
  // new one.
  virtual void sureciBitir() = 0;
  virtual void yakinlik(double oran) = 0;  // the page's zoom, 1 for its own size
  virtual void yazdir() = 0;               // the print dialog for the page, as window.print()
  // Spelling is allowed, asked for once, when the curtain has gone: the launch does not share
  // the processor with its dictionaries (half a second for Turkish), which load once the
  // user is about to write.
  virtual void yazimDenetiminiBaslat() = 0;
};

}  // namespace nevo
