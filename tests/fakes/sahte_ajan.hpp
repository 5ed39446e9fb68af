#pragma once
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "agent/ajan_yerleri.hpp"
#include "agent/surec_platformu.hpp"

namespace nevo::sahte {

// Waits for a condition that another process or thread makes true; false after `saniye`.
inline bool bekle(const std::function<bool()>& kosul, double saniye = 20) {
  const auto son = std::chrono::steady_clock::now() + std::chrono::duration<double>(saniye);
  while (!kosul()) {
    if (std::chrono::steady_clock::now() > son) return false;
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  return true;
}

inline std::string dosyaOku(const std::filesystem::path& yol) {
  std::ifstream dosya(yol, std::ios::binary);
  return {std::istreambuf_iterator<char>(dosya), std::istreambuf_iterator<char>()};
}

inline void dosyaYaz(const std::filesystem::path& yol, const std::string& metin) {
  std::filesystem::create_directories(yol.parent_path());
  std::ofstream(yol, std::ios::binary) << metin;
}

// A runtime that records each start in kayit/<pid>.argv, .cwd and .env. As the agent it
// stays up until SIGTERM (recorded in <pid>.sigterm; the trap is set before anything is
// recorded), or ends at once while the resource directory holds "coksun". As a pairing run
// ("eslestir CODE") it answers by the code: "HATA…" prints to standard error and exits 3, "BEKLE…"
// waits for the file "birak", "UZUN…" prints 300 000 "x" (more than a pipe holds), anything else
// prints "eşleşti CODE" and blank lines and exits 0.
inline constexpr const char* SAHTE_CALISMA_ZAMANI = R"(#!/bin/sh
kok=$(dirname "$0")
trap 'echo sigterm > "$kok/kayit/$$.sigterm"; [ -n "$!" ] && kill $!; exit 0' TERM
mkdir -p "$kok/kayit"
printf '%s\n' "$0" "$@" > "$kok/kayit/$$.argv"
pwd > "$kok/kayit/$$.cwd"
env > "$kok/kayit/$$.env"
if [ "$2" = eslestir ]; then
  case "$3" in
    HATA*) echo "reddedildi $3" >&2; exit 3 ;;
    UZUN*) head -c 300000 /dev/zero | tr '\0' x; exit 0 ;;
    BEKLE*) while [ ! -e "$kok/birak" ]; do sleep 0.05; done; echo "bekledi $3"; exit 0 ;;
    *) printf 'eşleşti %s\n\n\n' "$3"; exit 0 ;;
  esac
fi
[ -e "$kok/coksun" ] && exit 1
echo "ajan basladi $$"
# $! names the sleep as soon as it runs: a TERM at any moment ends it too.
sleep 1000 &
wait $!
)";

// The platform's processes over real children; every process reads as `herkes`, the
// identity the test gives.
class SurecPlatformuSahte final : public SurecPlatformu {
 public:
  std::variant<std::unique_ptr<Surec>, std::string> bagliBaslat(const SurecIstegi& istek,
                                                                int cikti) override {
    ++baslatmalar;
    return surecBaslat(istek, cikti);
  }
  std::optional<SurecKimligi> kimlik(long) const override { return herkes; }
  void kayitliysaSonlandir(const AjanKaydi& kayit) override { sonlandirilanlar.push_back(kayit); }

  std::optional<SurecKimligi> herkes = SurecKimligi{"1", "/calisma/zamani"};
  int baslatmalar = 0;
  std::vector<AjanKaydi> sonlandirilanlar;
};

// A temporary home with a resource directory holding the recording runtime as "node" and
// an agent script.
struct AjanKurulumu {
  AjanKurulumu() {
    std::string sablon = (std::filesystem::temp_directory_path() / "nevo-ajan-XXXXXX").string();
    kok = mkdtemp(sablon.data());
    kaynaklar = kok / "kaynaklar";
    dosyaYaz(kaynaklar / "node", SAHTE_CALISMA_ZAMANI);
    chmod((kaynaklar / "node").c_str(), 0755);
    dosyaYaz(kaynaklar / "ajan" / "ajan.mjs", "// ajan\n");
  }
  ~AjanKurulumu() {
    dosyaYaz(kaynaklar / "birak", "");
    std::error_code hata;
    std::filesystem::remove_all(kok, hata);
  }
  AjanKurulumu(const AjanKurulumu&) = delete;
  AjanKurulumu& operator=(const AjanKurulumu&) = delete;

  AjanYerleri yerler() const {
    return {kaynaklar.string(), (kok / "ev").string(), (kok / "ev" / "veri" / "Nevo").string(),
            "wss://kopru.example/ajan"};
  }
  std::filesystem::path ev() const { return kok / "ev"; }
  std::filesystem::path gunluk() const { return kok / "ev" / "veri" / "Nevo" / "ajan.log"; }

  // The runs recorded so far, each as the pid's file stem.
  std::vector<std::string> calismalar() const {
    std::vector<std::string> sonuc;
    std::error_code hata;
    for (const auto& g : std::filesystem::directory_iterator(kaynaklar / "kayit", hata)) {
      if (g.path().extension() == ".env") sonuc.push_back(g.path().stem().string());
    }
    return sonuc;
  }
  std::string kayit(const std::string& pid, const std::string& tur) const {
    return dosyaOku(kaynaklar / "kayit" / (pid + "." + tur));
  }
  bool kayitVar(const std::string& pid, const std::string& tur) const {
    return std::filesystem::exists(kaynaklar / "kayit" / (pid + "." + tur));
  }
  // Waits until `sayi` runs have written their whole record.
  bool calismaBekle(std::size_t sayi) const {
    return bekle([&] {
      const auto c = calismalar();
      if (c.size() < sayi) return false;
      for (const auto& pid : c) {
        if (kayit(pid, "env").empty()) return false;
      }
      return true;
    });
  }

  std::filesystem::path kok;
  std::filesystem::path kaynaklar;
};

}  // namespace nevo::sahte
