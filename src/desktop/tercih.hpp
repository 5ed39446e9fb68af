#pragma once
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace nevo {

// The per-user key-value store with typed reads (the user defaults on macOS, a key file
// on Linux). Every read asks the store; nothing is cached.
class TercihDeposu {
 public:
  virtual ~TercihDeposu() = default;
  virtual std::optional<std::int64_t> tamsayi(
      const std::string& anahtar) const = 0;  // integers only
  // The plain integer read: whatever is stored converted to an integer where it can be
  // (a whole or fractional number, a text that begins with one), else 0; absent is 0.
  virtual std::int64_t duzTamsayi(const std::string& anahtar) const = 0;
  virtual std::optional<std::string> metin(const std::string& anahtar) const = 0;
  virtual std::optional<bool> mantiksal(const std::string& anahtar) const = 0;
  virtual void tamsayiYaz(const std::string& anahtar, std::int64_t deger) = 0;
  virtual void metinYaz(const std::string& anahtar, const std::string& deger) = 0;
  virtual void mantiksalYaz(const std::string& anahtar, bool deger) = 0;
  // The store as it is now, read once and held in memory: several reads that belong
  // together then visit the disk once. Writes to the copy go nowhere.
  virtual std::unique_ptr<TercihDeposu> anlik() const = 0;
};

// All five preferences, read together.
struct TercihDegerleri {
  std::int64_t kisayolKod = -1;
  std::int64_t kisayolMod = 0;
  std::string kisayolAd;
  bool menuCubugu = false;
  bool uyanikTut = false;
};

// The five preferences, with their values for an absent key.
class Tercih {
 public:
  static constexpr const char* KISAYOL_KOD = "nevo.kisayol.kod";
  static constexpr const char* KISAYOL_MOD = "nevo.kisayol.mod";
  static constexpr const char* KISAYOL_AD = "nevo.kisayol.ad";
  static constexpr const char* MENU_CUBUGU = "nevo.menuCubugu";
  static constexpr const char* UYANIK_TUT = "nevo.uyanikTut";

  explicit Tercih(TercihDeposu& depo) : depo_(depo) {}

  std::int64_t kisayolKod() const { return depo_.tamsayi(KISAYOL_KOD).value_or(-1); }
  void kisayolKod(std::int64_t deger) { depo_.tamsayiYaz(KISAYOL_KOD, deger); }
  // The mask takes the plain read: a stored "4096" or 4096.0 is 4096, anything else 0.
  std::int64_t kisayolMod() const { return depo_.duzTamsayi(KISAYOL_MOD); }
  void kisayolMod(std::int64_t deger) { depo_.tamsayiYaz(KISAYOL_MOD, deger); }
  std::string kisayolAd() const { return depo_.metin(KISAYOL_AD).value_or(""); }
  void kisayolAd(const std::string& deger) { depo_.metinYaz(KISAYOL_AD, deger); }
  bool menuCubugu() const { return depo_.mantiksal(MENU_CUBUGU).value_or(false); }
  void menuCubugu(bool deger) { depo_.mantiksalYaz(MENU_CUBUGU, deger); }
  bool uyanikTut() const { return depo_.mantiksal(UYANIK_TUT).value_or(false); }
  void uyanikTut(bool deger) { depo_.mantiksalYaz(UYANIK_TUT, deger); }
  TercihDegerleri hepsi() const;

 private:
  TercihDeposu& depo_;
};

// A stored text read as an integer: only a whole decimal integer counts.
std::optional<std::int64_t> tamsayiOku(std::string_view metin);
// A stored text read by the plain integer read: the whole number at its start (after white
// space, with an optional sign; digits after a decimal point are dropped), held at the
// limits of the type; 0 when it does not begin with one.
std::int64_t duzTamsayiOku(std::string_view metin);
// A stored text read as a boolean: "true" or "false" only.
std::optional<bool> mantiksalOku(std::string_view metin);

}  // namespace nevo

namespace nevo {

// The platform's preference store.
std::unique_ptr<TercihDeposu> tercihDeposuOlustur();

}  // namespace nevo
