#pragma once
#include <cstdint>
#include <string>
#include <string_view>

// Every call the shell makes into the page is written here, one function per page function,
// each returning the guarded script "window.F && window.F(arguments)". No other file builds
// a page call or escapes text for one.
namespace nevo {

// The text escaped for a single-quoted script literal: backslash, quote, LF,
// CR, U+2028 and U+2029, in that order; nothing else.
std::string jsKacir(std::string_view metin);

// A settings reply: the request number and the status object as JSON text.
std::string nevoMasaustuCevap(std::int64_t istek, std::string_view durum);
// A command chosen in the menu-bar item's menu.
std::string nevoKomut(std::string_view komut);
// The quick-entry panel's text.
std::string nevoHizliMesaj(std::string_view metin);
// The notification permission's word.
std::string nevoBildirimDurumu(std::string_view kelime);

// A pairing's outcome. The message is escaped but stands without quotes, as script text:
// a message that is a valid expression arrives as its value, any other is a syntax error.
std::string nevoEslestirmeSonucu(bool ok, std::string_view mesaj);

// The two link calls escape only backslashes and single quotes. A line feed or carriage
// return in a value makes the script a syntax error, so the page function is not called.
std::string nevoBaglantiDonusu(std::string_view kod, std::string_view baglanti);
std::string nevoOturumKur(std::string_view erisim, std::string_view yenileme);

}  // namespace nevo
