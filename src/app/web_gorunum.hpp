#pragma once
#include <functional>
#include <optional>
#include <string>

namespace nevo {

// The main web view, as the core drives it.
class WebGorunum {
 public:
  // A script's reply: the boolean it returned, or empty for any other value or an error.
  using Cevap = std::function<void(std::optional<bool>)>;

  virtual ~WebGorunum() = default;
  virtual std::optional<std::string> adres() const = 0;
  virtual void adresYukle(const std::string& adres) = 0;
  virtual void htmlYukle(const std::string& html) = 0;  // no base address: "about:blank"
  virtual void yenile() = 0;
  virtual void betikCalistir(const std::string& betik) = 0;  // no completion
  virtual void betikSor(const std::string& betik, Cevap cevap) = 0;
  // An editing command by its WebKit name: "Undo", "Redo", "Cut", "Copy", "Paste",
  // "SelectAll".
  virtual void duzenle(const std::string& komut) = 0;
  // Ends the web process that shows the page; the view stays and a later load starts a
  // new one.
  virtual void sureciBitir() = 0;
};

}  // namespace nevo
