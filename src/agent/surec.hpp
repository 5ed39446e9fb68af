#pragma once

namespace nevo {

// A child process handle (the local agent).
class Surec {
 public:
  virtual ~Surec() = default;
  virtual bool calisiyor() const = 0;
  virtual void sonlandir() = 0;  // SIGTERM, no wait
};

}  // namespace nevo
