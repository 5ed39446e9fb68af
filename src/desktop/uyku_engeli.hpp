#pragma once
#include <cstddef>
#include <cstdint>
#include <memory>
#include <set>
#include <string>

#include "desktop/tercih.hpp"

namespace nevo {

// The platform's way to keep the machine from idle sleep: taken with a reason, yields a
// handle, released by it. 0 means refused.
class GucKilidi {
 public:
  virtual ~GucKilidi() = default;
  virtual std::uint32_t al(const std::string& neden) = 0;
  virtual void birak(std::uint32_t kimlik) = 0;
};

// Holds one power assertion exactly while "nevo.uyanikTut" is on and a job runs.
class UykuEngeli {
 public:
  static constexpr const char* TUR = "PreventUserIdleSystemSleep";
  static constexpr int SEVIYE = 255;  // kIOPMAssertionLevelOn
  static constexpr const char* NEDEN = "Nevo: uzun gorev suruyor";

  UykuEngeli(GucKilidi& kilit, const Tercih& tercih) : kilit_(kilit), tercih_(tercih) {}

  bool aktif() const { return kimlik_ != 0; }
  std::size_t isSayisi() const { return isler_.size(); }
  void ekle(const std::string& is);
  void cikar(const std::string& is);
  void temizle();
  void tercihDegisti() { guncelle(); }

 private:
  void guncelle();

  GucKilidi& kilit_;
  const Tercih& tercih_;
  std::uint32_t kimlik_ = 0;
  std::set<std::string> isler_;
};

}  // namespace nevo

namespace nevo {

// The platform's power assertion.
std::unique_ptr<GucKilidi> gucKilidiOlustur();

}  // namespace nevo
