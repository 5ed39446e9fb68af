#pragma once
#include <memory>

#include "temel/ana_kuyruk.hpp"

namespace nevo {

// How often a crashed page comes back by itself: at most twice within a minute; a third
// crash inside that minute is a failed load.
class CokmeSiniri {
 public:
  static constexpr int EN_FAZLA = 2;
  static constexpr double SURE = 60;

  explicit CokmeSiniri(AnaKuyruk& kuyruk) : kuyruk_(kuyruk) {}

  // Counts a crash; true while the crashes of the last minute are at most EN_FAZLA.
  bool kaydet();

 private:
  AnaKuyruk& kuyruk_;
  // Shared with the queued work that forgets each crash after a minute.
  std::shared_ptr<int> sayi_ = std::make_shared<int>(0);
};

}  // namespace nevo
