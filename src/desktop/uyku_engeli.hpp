#pragma once
#include <cstdint>
#include <set>
#include <string>

#include "desktop/tercih.hpp"

namespace nevo {

// The platform's way to keep the machine from idle sleep (Part 4.7): taken with a reason,
// yields a handle, released by it. 0 means refused.
class GucKilidi {
 public:
  virtual ~GucKilidi() = default;
  virtual std::uint32_t al(const std::string& neden) = 0;
  virtual void birak(std::uint32_t kimlik) = 0;
};

// Holds one power assertion exactly while "nevo.uyanikTut" is on and a job runs (Part 4.7).
class UykuEngeli {
 public:
  static constexpr const char* TUR = "PreventUserIdleSystemSleep";
  static constexpr int SEVIYE = 255;  // kIOPMAssertionLevelOn
  static constexpr const char* NEDEN = "Nevo: uzun gorev suruyor";

  UykuEngeli(GucKilidi& kilit, const Tercih& tercih) : kilit_(kilit), tercih_(tercih) {}

  std::uint32_t kimlik = 0;
  std::set<std::string> isler;

  bool aktif() const { return kimlik != 0; }
  void ekle(const std::string& is);
  void cikar(const std::string& is);
  void temizle();
  void tercihDegisti() { guncelle(); }
  void guncelle();

 private:
  GucKilidi& kilit_;
  const Tercih& tercih_;
};

}  // namespace nevo
