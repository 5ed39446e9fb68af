#pragma once
#include <cstddef>
#include <deque>
#include <string>

namespace nevo {

// The engine asks about a navigation without naming its frame. The top page hears of each
// of its own navigations before the engine asks, and reports the address here; a
// navigation whose address the top page reported is the main frame's.
class UstGezinmeIzi {
 public:
  static constexpr std::size_t SINIR = 16;  // reports kept while no question matches them

  void duyuruldu(std::string adres);
  // True once for each reported address, the oldest report first.
  bool karsila(const std::string& adres);

 private:
  std::deque<std::string> adresler_;
};

}  // namespace nevo
