#pragma once
#include <string>

namespace nevo {

// Below the shell's data directory: the web view's website data, cookies included.
inline constexpr const char* WEB_VERISI_DIZINI = "/web";
inline constexpr const char* CEREZ_DOSYASI = "/cerezler.sqlite";

// The engine's data kept so far in `eski` moves to `yeni` once: only while `yeni` does not
// exist yet, so nothing there is replaced. False when nothing moved.
bool eskiVeriyiTasi(const std::string& eski, const std::string& yeni);

// Whether `yol` is a directory this process can create files in (it is made when missing).
bool yazilabilirDizin(const std::string& yol);

}  // namespace nevo
