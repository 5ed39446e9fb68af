#pragma once
#include <cstdint>
#include <optional>
#include <string>

namespace nevo {

// The words of downloads, in one place.
namespace indirme_metni {
inline constexpr const char* SURUYOR = "İndiriliyor";
inline constexpr const char* BITTI = "İndirme tamamlandı";
inline constexpr const char* KLASORDE_GOSTER = "Klasörde göster";
}  // namespace indirme_metni

// The body of a running download's notification: its name, and how far it is when the
// size is known ("rapor.pdf · %40", the percent sign in front as Turkish writes it).
std::string ilerlemeMetni(const std::string& ad, std::optional<int> yuzde);

// How far a download is, in whole percent; none while its size is unknown.
std::optional<int> indirmeYuzdesi(std::uint64_t alinan, std::optional<std::uint64_t> toplam);

}  // namespace nevo
