#pragma once
#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace nevo {

// One download of the web engine, as the core drives it.
class Indirme {
 public:
  virtual ~Indirme() = default;
  virtual void hedefVer(const std::string& yol) = 0;  // where the engine writes the file
  virtual void iptal() = 0;  // the engine stops; its own partial file goes with it
};

// What the platform reports of the engine's downloads. A download is numbered when it
// starts; a number the core no longer knows (refused, cancelled, ended) is ignored.
class IndirmeOlaylari {
 public:
  virtual ~IndirmeOlaylari() = default;
  // Any download the engine starts for the view: a link, a response it turned into a
  // download, an address the shell asked it to fetch. 0: refused and cancelled.
  virtual std::uint64_t basladi(std::shared_ptr<Indirme> indirme, const std::string& adres) = 0;
  // The user chose to save what `adres` points to (an image, from the context menu), and
  // the shell is about to have the engine fetch it: that one download is theirs, whatever
  // the address's origin.
  virtual void kullaniciIstedi(const std::string& adres) = 0;
  // The engine asks where to write, with the name the response or the page suggests.
  virtual void hedefSor(std::uint64_t no, const std::string& onerilenAd) = 0;
  virtual void ilerledi(std::uint64_t no, std::uint64_t alinan,
                        std::optional<std::uint64_t> toplam) = 0;
  virtual void bitti(std::uint64_t no) = 0;      // everything written to the given place
  virtual void basarisiz(std::uint64_t no) = 0;  // failed or cancelled
};

}  // namespace nevo
