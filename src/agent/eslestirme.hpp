#pragma once
#include <string>

namespace nevo {

// Pairing the local agent with a code from the page. The message handler hands
// the code on; the pairing itself lands with subsystem 3.
class Eslestirme {
 public:
  virtual ~Eslestirme() = default;
  virtual void eslestir(const std::string& kod) = 0;
};

}  // namespace nevo
