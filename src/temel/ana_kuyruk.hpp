#pragma once
#include <functional>
#include <memory>

namespace nevo {

// The main queue: work posted here runs later on the main thread, in posting order.
class AnaKuyruk {
 public:
  virtual ~AnaKuyruk() = default;
  // Safe from any thread: the way back to the main thread from background work.
  virtual void gonder(std::function<void()> is) = 0;
  virtual void sonra(double saniye, std::function<void()> is) = 0;
};

}  // namespace nevo

namespace nevo {

// The platform's main queue.
std::unique_ptr<AnaKuyruk> anaKuyrukOlustur();

}  // namespace nevo
