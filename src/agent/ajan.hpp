#pragma once
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "agent/ajan_ortami.hpp"
#include "agent/eslestirme.hpp"
#include "agent/surec.hpp"
#include "agent/surec_platformu.hpp"
#include "temel/ana_kuyruk.hpp"

namespace nevo {

inline constexpr const char* CALISMA_ZAMANI = "node";
inline constexpr const char* AJAN_BETIGI = "/ajan/ajan.mjs";
inline constexpr const char* PANEL_YOLU_DOSYASI = "panel-yolu.txt";
inline constexpr const char* AJAN_GUNLUGU = "/ajan.log";
inline constexpr const char* BASLATILAMADI = "[kabuk] ajan baslatilamadi: ";

inline constexpr const char* KOD_GECERSIZ = "Kod geçersiz.";
inline constexpr const char* AJAN_YOK = "Ajan bu kopyada yok.";
inline constexpr const char* ESLESTIRME_CALISMADI = "Eşleştirme çalıştırılamadı.";

// The local agent: a script runtime from the resource directory running the agent script,
// started once at launch and again after a successful pairing when it is not running,
// stopped at quit. Its output goes to a log that is only ever appended to. Nothing watches
// it: an agent that dies is not noticed and not restarted. Pairing runs the script once
// more, off the main thread, and reports back on the main queue to whoever asked.
// Given the platform's processes, the agent is tied to the shell and recorded in the data
// directory, and a start first stops an agent that an earlier shell left running.
class Ajan final : public Eslestirme {
 public:
  Ajan(AjanYerleri yerler, AnaKuyruk& kuyruk, SurecPlatformu* platform = nullptr);
  ~Ajan() override;
  Ajan(const Ajan&) = delete;
  Ajan& operator=(const Ajan&) = delete;

  // The agent script: in the resource directory, else below the directory named by the
  // developer pointer file; read from the file system each time.
  std::optional<std::string> ajanYolu() const;
  void ajaniBaslat();
  void ajaniDurdur();  // SIGTERM, no wait
  void ajanEslestir(const std::string& kod, Bitince bitince) override;
  const Surec* ajanSureci() const { return ajanSureci_.get(); }

 private:
  struct Donus;
  std::optional<std::string> calismaZamani() const;
  std::optional<std::string> panelYolu() const;
  SurecIstegi istek(const std::string& calismaZamani, const std::string& betik) const;
  void kalaniDurdur();
  void kaydet() const;

  AjanYerleri yerler_;
  SurecPlatformu* platform_;
  std::unique_ptr<Surec> ajanSureci_;
  std::shared_ptr<Donus> donus_;  // the pairing runs' way back, cut when the agent goes
};

}  // namespace nevo
