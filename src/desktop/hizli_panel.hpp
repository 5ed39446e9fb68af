#pragma once
#include <functional>
#include <string>

namespace nevo {

// The floating quick-entry panel: one line of text sent with Return.
class HizliPanel {
 public:
  virtual ~HizliPanel() = default;
  virtual bool gorunur() const = 0;  // a panel window exists and is visible
  virtual void gizle() = 0;
  virtual void ac() = 0;
  virtual void gonderAyarla(std::function<void(const std::string&)> gonder) = 0;
};

}  // namespace nevo
