#pragma once
#include <functional>
#include <map>
#include <utility>

#include "temel/ana_kuyruk.hpp"

namespace nevo::sahte {

// A main queue driven by hand over a virtual clock.
class Kuyruk final : public AnaKuyruk {
 public:
  void gonder(std::function<void()> is) override { sonra(0, std::move(is)); }
  void sonra(double saniye, std::function<void()> is) override {
    isler_.emplace(std::pair{simdi_ + saniye, sira_++}, std::move(is));
  }
  // Runs everything due by now (also work that running work posts for now).
  int calistir() { return ilerle(0); }
  // Advances the clock by `saniye`, running work as it falls due; returns how many ran.
  int ilerle(double saniye) {
    const double hedef = simdi_ + saniye;
    int sayi = 0;
    while (!isler_.empty() && isler_.begin()->first.first <= hedef + 1e-9) {
      auto dugum = isler_.extract(isler_.begin());
      simdi_ = std::max(simdi_, dugum.key().first);
      dugum.mapped()();
      ++sayi;
    }
    simdi_ = hedef;
    return sayi;
  }
  std::size_t bekleyen() const { return isler_.size(); }
  double simdi() const { return simdi_; }

 private:
  std::multimap<std::pair<double, long>, std::function<void()>> isler_;
  double simdi_ = 0;
  long sira_ = 0;
};

}  // namespace nevo::sahte
