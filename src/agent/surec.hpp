#pragma once
#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "agent/ajan_ortami.hpp"

namespace nevo {

// A child process handle (the local agent).
class Surec {
 public:
  virtual ~Surec() = default;
  virtual bool calisiyor() const = 0;
  virtual void sonlandir() = 0;  // SIGTERM, no wait
  virtual long numara() const = 0;
};

// A program started straight from its path, never through a shell: its arguments, its
// whole environment and its working directory.
struct SurecIstegi {
  std::string program;
  std::vector<std::string> argumanlar;  // after the program's own name
  Ortam ortam;
  std::string dizin;
};

// The program's argument and environment arrays, as the system's start calls take them,
// over strings that live as long as this.
struct KomutDizileri {
  explicit KomutDizileri(const SurecIstegi& istek);
  std::vector<std::string> metinler;
  std::vector<char*> argv;
  std::vector<char*> envp;
};

// The handle of a child this process started: it reaps the child when it ends, so no
// zombie stays.
std::unique_ptr<Surec> cocukSureci(long numara);

// Starts the program with standard output and standard error on `cikti` (the shell's own
// when negative). The handle reaps the child when it ends, so no zombie stays; on failure
// the error's description.
std::variant<std::unique_ptr<Surec>, std::string> surecBaslat(const SurecIstegi& istek, int cikti);

// Runs the program to its end with standard output and standard error on one pipe, read
// after it has exited. No exit status when it could not be started.
struct SurecSonucu {
  std::optional<int> durum;
  std::string cikti;
};
SurecSonucu surecCalistir(const SurecIstegi& istek);

}  // namespace nevo
