#include "temel/karakterler.hpp"

#include <unicode/brkiter.h>
#include <unicode/locid.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>
#include <unicode/ustring.h>

#include <memory>

namespace nevo {
namespace {

std::optional<icu::UnicodeString> utf16(std::string_view metin) {
  if (metin.size() > static_cast<std::size_t>(INT32_MAX)) return std::nullopt;
  const auto uzunluk = static_cast<int32_t>(metin.size());
  int32_t gereken = 0;
  UErrorCode durum = U_ZERO_ERROR;
  u_strFromUTF8(nullptr, 0, &gereken, metin.data(), uzunluk, &durum);
  if (durum != U_BUFFER_OVERFLOW_ERROR && U_FAILURE(durum)) return std::nullopt;
  icu::UnicodeString sonuc;
  UChar* tampon = sonuc.getBuffer(gereken);
  durum = U_ZERO_ERROR;
  u_strFromUTF8(tampon, gereken, nullptr, metin.data(), uzunluk, &durum);
  sonuc.releaseBuffer(U_SUCCESS(durum) ? gereken : 0);
  if (U_FAILURE(durum)) return std::nullopt;
  return sonuc;
}

std::string utf8(const icu::UnicodeString& metin) {
  std::string sonuc;
  metin.toUTF8String(sonuc);
  return sonuc;
}

}  // namespace

std::optional<std::vector<std::string>> karakterlereAyir(std::string_view metin) {
  auto kaynak = utf16(metin);
  if (!kaynak) return std::nullopt;
  UErrorCode durum = U_ZERO_ERROR;
  std::unique_ptr<icu::BreakIterator> kesici(
      icu::BreakIterator::createCharacterInstance(icu::Locale::getRoot(), durum));
  if (U_FAILURE(durum) || !kesici) return std::nullopt;
  kesici->setText(*kaynak);
  std::vector<std::string> karakterler;
  int32_t bas = kesici->first();
  for (int32_t son = kesici->next(); son != icu::BreakIterator::DONE; son = kesici->next()) {
    karakterler.push_back(utf8(kaynak->tempSubStringBetween(bas, son)));
    bas = son;
  }
  return karakterler;
}

bool utf8Mi(std::string_view metin) { return utf16(metin).has_value(); }

std::string buyukHarfe(std::string_view metin) {
  auto kaynak = utf16(metin);
  if (!kaynak) return {};
  return utf8(kaynak->toUpper(icu::Locale::getRoot()));
}

std::string kirp(std::string_view metin) {
  auto kaynak = utf16(metin);
  if (!kaynak) return {};
  int32_t bas = 0;
  int32_t son = kaynak->length();
  while (bas < son && u_isUWhiteSpace(kaynak->char32At(bas))) bas = kaynak->moveIndex32(bas, 1);
  while (son > bas && u_isUWhiteSpace(kaynak->char32At(son - 1))) {
    son = kaynak->moveIndex32(son, -1);
  }
  return utf8(kaynak->tempSubStringBetween(bas, son));
}

bool harfVeyaSayi(std::string_view karakter) {
  const auto kaynak = utf16(karakter);
  if (!kaynak || kaynak->isEmpty()) return false;
  return (U_GET_GC_MASK(kaynak->char32At(0)) & (U_GC_L_MASK | U_GC_N_MASK)) != 0;
}

}  // namespace nevo
