#pragma once
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <set>
#include <string>

#include "desktop/tercih.hpp"

namespace nevo {

// The platform's way to keep the machine from idle sleep: taken with a reason, yields a
// handle, released by it. The answer may come later: `cevap(kimlik, true)` once the hold
// is held, `cevap(0, false)` when it is refused, and `cevap(kimlik, false)` when a held
// hold is lost; never after `birak`.
class GucKilidi {
 public:
  using Cevap = std::function<void(std::uint32_t kimlik, bool tutuluyor)>;
  virtual ~GucKilidi() = default;
  virtual void al(const std::string& neden, Cevap cevap) = 0;
  virtual void birak(std::uint32_t kimlik) = 0;
};

// Holds one power assertion exactly while "nevo.uyanikTut" is on and a job runs. One
// request at a time: while it is unanswered nothing more is asked, and an answer that
// comes when the hold is no longer wanted is given back at once.
class UykuEngeli {
 public:
  static constexpr const char* TUR = "PreventUserIdleSystemSleep";
  static constexpr int SEVIYE = 255;  // kIOPMAssertionLevelOn
  static constexpr const char* NEDEN = "Nevo: uzun gorev suruyor";

  UykuEngeli(GucKilidi& kilit, const Tercih& tercih) : kilit_(kilit), tercih_(tercih) {}
  UykuEngeli(const UykuEngeli&) = delete;
  UykuEngeli& operator=(const UykuEngeli&) = delete;

  bool aktif() const { return kimlik_ != 0; }
  std::size_t isSayisi() const { return isler_.size(); }
  void ekle(const std::string& is);
  void cikar(const std::string& is);
  void temizle();
  void tercihDegisti() { guncelle(); }

 private:
  bool istenir() const { return tercih_.uyanikTut() && !isler_.empty(); }
  void guncelle();
  void cevapGeldi(std::uint32_t kimlik, bool tutuluyor);

  GucKilidi& kilit_;
  const Tercih& tercih_;
  std::uint32_t kimlik_ = 0;
  bool bekliyor_ = false;
  std::set<std::string> isler_;
  std::shared_ptr<bool> canli_ = std::make_shared<bool>(true);  // answers outlive no engine
};

}  // namespace nevo

namespace nevo {

// The platform's power assertion.
std::unique_ptr<GucKilidi> gucKilidiOlustur();

}  // namespace nevo
