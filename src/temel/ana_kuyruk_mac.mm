#import <dispatch/dispatch.h>

#include "temel/ana_kuyruk.hpp"

namespace nevo {
namespace {

class AnaKuyrukMac final : public AnaKuyruk {
 public:
  void gonder(std::function<void()> is) override {
    dispatch_async(dispatch_get_main_queue(), ^{
      is();
    });
  }
  void sonra(double saniye, std::function<void()> is) override {
    dispatch_after(dispatch_time(DISPATCH_TIME_NOW, static_cast<int64_t>(saniye * NSEC_PER_SEC)),
                   dispatch_get_main_queue(), ^{
                     is();
                   });
  }
};

}  // namespace

std::unique_ptr<AnaKuyruk> anaKuyrukOlustur() { return std::make_unique<AnaKuyrukMac>(); }

}  // namespace nevo
