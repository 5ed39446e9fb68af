#pragma once
#include <optional>
#include <string>

namespace nevo {

// Where the agent lives on this machine.
struct AjanYerleri {
  std::optional<std::string> kaynakDizini;  // the resource directory, when there is one
  std::string ev;                           // the user's home, without a trailing slash
  std::string veriDizini;                   // the agent data directory, holding the log
  std::string kopruAdresi;                  // the backend's WebSocket endpoint
};

// The platform's places: the application's resource directory, the user's home, and the
// agent data directory (the per-user data folder followed by "/Nevo").
AjanYerleri ajanYerleriOlustur(std::string kopruAdresi);

}  // namespace nevo
