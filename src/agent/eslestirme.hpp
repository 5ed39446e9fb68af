#pragma once
#include <functional>
#include <string>

namespace nevo {

// Pairing the local agent with a code from the page. Each pairing reports its own outcome
// to the completion it was given, on the main thread: at once for a code or an agent that
// cannot be paired, otherwise when the pairing run ends.
class Eslestirme {
 public:
  using Bitince = std::function<void(bool ok, const std::string& mesaj)>;
  virtual ~Eslestirme() = default;
  virtual void ajanEslestir(const std::string& kod, Bitince bitince) = 0;
};

}  // namespace nevo
