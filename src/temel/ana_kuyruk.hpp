#pragma once
#include <functional>

namespace nevo {

// The main queue: work posted here runs later on the main thread, in posting order.
class AnaKuyruk {
 public:
  virtual ~AnaKuyruk() = default;
  virtual void gonder(std::function<void()> is) = 0;
  virtual void sonra(double saniye, std::function<void()> is) = 0;
};

}  // namespace nevo
