#pragma once
#include <functional>
#include <string>

#include "desktop/hizli_gorunum.hpp"

namespace nevo {

// The panel's rules: it opens empty, and Return sends the trimmed text unless nothing is
// left of it.
class HizliPencere final {
 public:
  explicit HizliPencere(HizliGorunum& gorunum);
  HizliPencere(const HizliPencere&) = delete;
  HizliPencere& operator=(const HizliPencere&) = delete;

  bool gorunur() const { return gorunum_.gorunur(); }
  void gizle() { gorunum_.gizle(); }
  void ac();
  void acKapat();
  void gonderAyarla(std::function<void(const std::string&)> gonder) { gonder_ = std::move(gonder); }
  void gonderildi();

 private:
  HizliGorunum& gorunum_;
  std::function<void(const std::string&)> gonder_;
};

}  // namespace nevo
