#pragma once
#include <optional>
#include <string>
#include <string_view>

namespace nevo {

inline constexpr const char* AJAN_KAYDI = "/ajan.pid";

// What tells one process from another that later gets the same number: when it started
// (as the system counts it) and the program it runs.
struct SurecKimligi {
  std::string baslangic;
  std::string program;
  bool operator==(const SurecKimligi&) const = default;
};

// The running agent as a shell records it in the agent data directory, so that the next
// launch can stop an agent whose shell died.
struct AjanKaydi {
  long numara = 0;
  SurecKimligi kimlik;
};

// Three lines: the number, the start, the program.
std::string kayitMetni(const AjanKaydi& kayit);

// The record in `metin`; nothing for text that is not one (a positive number, a start
// and a program, none of them empty).
std::optional<AjanKaydi> kayitOku(std::string_view metin);

// A recorded agent is still running only when the process with its number is the same
// process: same start, same program. Anything else is another process or none.
bool halaAyniSurec(const AjanKaydi& kayit, const std::optional<SurecKimligi>& simdiki);

}  // namespace nevo
