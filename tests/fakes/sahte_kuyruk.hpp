#pragma once
#include <functional>
#include <map>
#include <mutex>
#include <utility>

#include "temel/ana_kuyruk.hpp"

namespace nevo::sahte {

// A main queue driven by hand over a virtual clock; background threads may post to it.
class Kuyruk final : public AnaKuyruk {
 public:
  void gonder(std::function<void()> is) override { sonra(0, std::move(is)); }
  void sonra(double saniye, std::function<void()> is) override {
    const std::lock_guard kilit(kilit_);
    isler_.emplace(std::pair{simdi_ + saniye, sira_++}, std::move(is));
  }
  // Runs everything due by now (also work that running work posts for now).
  int calistir() { return ilerle(0); }
  // Advances the clock by `saniye`, running work as it falls due; returns how many ran.
  int ilerle(double saniye) {
    const double hedef = simdi_ + saniye;
    int sayi = 0;
    for (;;) {
      std::unique_lock kilit(kilit_);
      if (isler_.empty() || isler_.begin()->first.first > hedef + 1e-9) break;
      auto dugum = isler_.extract(isler_.begin());
      simdi_ = std::max(simdi_, dugum.key().first);
      kilit.unlock();
      dugum.mapped()();
      ++sayi;
    }
    const std::lock_guard kilit(kilit_);
    simdi_ = hedef;
    return sayi;
  }
  std::size_t bekleyen() const {
    const std::lock_guard kilit(kilit_);
    return isler_.size();
  }
  double simdi() const { return simdi_; }

 private:
  mutable std::mutex kilit_;
  std::multimap<std::pair<double, long>, std::function<void()>> isler_;
  double simdi_ = 0;
  long sira_ = 0;
};

}  // namespace nevo::sahte
