#include "desktop/tercih_deposu_gtk.hpp"

#include <glib.h>
#include <glib/gstdio.h>

#include "temel/atomik_yaz.hpp"
#include "temel/glib_gtk.hpp"

namespace nevo {
namespace {

constexpr const char* GRUP = "Nevo";

// Okunamadi: the file is there but could not be read (permissions, a directory, an I/O
// error); Bozuk: it was read and is not a key file.
enum class Yukleme { Tamam, Yok, Okunamadi, Bozuk };

Yukleme yukle(const std::string& yol, GKeyFile* dosya) {
  GError* hata = nullptr;
  const bool tamam = g_key_file_load_from_file(dosya, yol.c_str(), G_KEY_FILE_KEEP_COMMENTS, &hata);
  Yukleme sonuc = Yukleme::Tamam;
  if (!tamam && g_error_matches(hata, G_FILE_ERROR, G_FILE_ERROR_NOENT)) {
    sonuc = Yukleme::Yok;
  } else if (!tamam) {
    sonuc =
        hata != nullptr && hata->domain == G_KEY_FILE_ERROR ? Yukleme::Bozuk : Yukleme::Okunamadi;
  }
  g_clear_error(&hata);
  return sonuc;
}

// The key file as it is on disk now; empty when it is absent or does not parse.
AnahtarDosyasi okunan(const std::string& yol) {
  AnahtarDosyasi dosya(g_key_file_new());
  if (yukle(yol, dosya.get()) != Yukleme::Tamam) return nullptr;
  return dosya;
}

// The file read once, with the store's typed reads; writes go nowhere. Every read of the
// store itself goes through one made afresh.
class TercihAnligi final : public TercihDeposu {
 public:
  explicit TercihAnligi(AnahtarDosyasi dosya) : dosya_(std::move(dosya)) {}
  std::optional<std::int64_t> tamsayi(const std::string& anahtar) const override {
    auto deger = metin(anahtar);
    return deger ? tamsayiOku(*deger) : std::nullopt;
  }
  std::int64_t duzTamsayi(const std::string& anahtar) const override {
    auto deger = metin(anahtar);
    return deger ? duzTamsayiOku(*deger) : 0;
  }
  std::optional<std::string> metin(const std::string& anahtar) const override {
    if (!dosya_) return std::nullopt;
    GMetin deger(g_key_file_get_string(dosya_.get(), GRUP, anahtar.c_str(), nullptr));
    if (!deger) return std::nullopt;
    return std::string(deger.get());
  }
  std::optional<bool> mantiksal(const std::string& anahtar) const override {
    auto deger = metin(anahtar);
    return deger ? mantiksalOku(*deger) : std::nullopt;
  }
  void tamsayiYaz(const std::string&, std::int64_t) override {}
  void metinYaz(const std::string&, const std::string&) override {}
  void mantiksalYaz(const std::string&, bool) override {}
  // Nothing ever changes this file, so a copy shares it.
  std::unique_ptr<TercihDeposu> anlik() const override {
    return std::make_unique<TercihAnligi>(
        AnahtarDosyasi(dosya_ ? g_key_file_ref(dosya_.get()) : nullptr));
  }

 private:
  AnahtarDosyasi dosya_;
};

}  // namespace

std::unique_ptr<TercihDeposu> tercihDeposuOlustur() { return std::make_unique<TercihDeposuGtk>(); }

TercihDeposuGtk::TercihDeposuGtk()
    : TercihDeposuGtk(std::string(g_get_user_config_dir()) + "/nevo/tercihler.ini") {}

TercihDeposuGtk::TercihDeposuGtk(std::string dosya) : dosya_(std::move(dosya)) {
  yarimKalanlariTemizle(dosya_);
}

std::optional<std::string> TercihDeposuGtk::metin(const std::string& anahtar) const {
  return TercihAnligi(okunan(dosya_)).metin(anahtar);
}

std::unique_ptr<TercihDeposu> TercihDeposuGtk::anlik() const {
  return std::make_unique<TercihAnligi>(okunan(dosya_));
}

std::optional<std::int64_t> TercihDeposuGtk::tamsayi(const std::string& anahtar) const {
  return TercihAnligi(okunan(dosya_)).tamsayi(anahtar);
}

std::int64_t TercihDeposuGtk::duzTamsayi(const std::string& anahtar) const {
  return TercihAnligi(okunan(dosya_)).duzTamsayi(anahtar);
}

std::optional<bool> TercihDeposuGtk::mantiksal(const std::string& anahtar) const {
  return TercihAnligi(okunan(dosya_)).mantiksal(anahtar);
}

void TercihDeposuGtk::tamsayiYaz(const std::string& anahtar, std::int64_t deger) {
  yaz(anahtar, std::to_string(deger));
}

void TercihDeposuGtk::metinYaz(const std::string& anahtar, const std::string& deger) {
  yaz(anahtar, deger);
}

void TercihDeposuGtk::mantiksalYaz(const std::string& anahtar, bool deger) {
  yaz(anahtar, deger ? "true" : "false");
}

// A file that could not be read is left exactly as it is and the write is dropped: what
// it holds is unknown, so nothing may replace it.
void TercihDeposuGtk::yaz(const std::string& anahtar, const std::string& deger) {
  AnahtarDosyasi dosya(g_key_file_new());
  const auto yukleme = yukle(dosya_, dosya.get());
  if (yukleme == Yukleme::Okunamadi) return;
  if (yukleme == Yukleme::Bozuk) {
    const auto kenar = dosya_ + ".bozuk-" + std::to_string(g_get_real_time() / G_USEC_PER_SEC);
    g_rename(dosya_.c_str(), kenar.c_str());
    dosya.reset(g_key_file_new());
  }
  g_key_file_set_string(dosya.get(), GRUP, anahtar.c_str(), deger.c_str());
  GMetin dizin(g_path_get_dirname(dosya_.c_str()));
  g_mkdir_with_parents(dizin.get(), 0700);
  gsize uzunluk = 0;
  GMetin metin(g_key_file_to_data(dosya.get(), &uzunluk, nullptr));
  if (metin) atomikYaz(dosya_, std::string_view(metin.get(), uzunluk));
}

}  // namespace nevo
