#pragma once
#include "bridge/dosya_kaydet.hpp"

namespace nevo {

// Save dialogs one at a time, whoever asks (the page's file save, a download): while one
// is showing, a further request ends at once as cancelled, so a page cannot stack dialogs
// or pile up what waits for them.
class TekKayitPaneli final : public KayitPaneli {
 public:
  explicit TekKayitPaneli(KayitPaneli& panel) : panel_(panel) {}
  void ac(const std::string& onerilenAd,
          std::function<void(std::optional<std::string>)> bitti) override;

 private:
  KayitPaneli& panel_;
  std::shared_ptr<bool> acik_ = std::make_shared<bool>(false);
};

}  // namespace nevo
