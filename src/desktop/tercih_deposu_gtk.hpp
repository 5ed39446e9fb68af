#pragma once
#include <string>
#include <utility>

#include "desktop/tercih.hpp"

namespace nevo {

// Preferences in a key file, $XDG_CONFIG_HOME/nevo/tercihler.ini.
// Every read loads the file afresh; every write replaces it atomically, through a symbolic
// link and keeping the file's mode. A file that does not parse as a key file reads as
// absent values, and before the next write it is kept aside under a name with ".bozuk-"
// and the time; a file that cannot be read at all reads as absent values and is never
// written over. Temporary files that an interrupted write left are removed at start.
class TercihDeposuGtk final : public TercihDeposu {
 public:
  TercihDeposuGtk();
  explicit TercihDeposuGtk(std::string dosya);

  std::optional<std::int64_t> tamsayi(const std::string& anahtar) const override;
  std::int64_t duzTamsayi(const std::string& anahtar) const override;
  std::optional<std::string> metin(const std::string& anahtar) const override;
  std::optional<bool> mantiksal(const std::string& anahtar) const override;
  void tamsayiYaz(const std::string& anahtar, std::int64_t deger) override;
  void metinYaz(const std::string& anahtar, const std::string& deger) override;
  void mantiksalYaz(const std::string& anahtar, bool deger) override;
  std::unique_ptr<TercihDeposu> anlik() const override;

 private:
  void yaz(const std::string& anahtar, const std::string& deger);

  std::string dosya_;
};

}  // namespace nevo
