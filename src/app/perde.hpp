#pragma once
#include <functional>

namespace nevo {

// The loading curtain (Part 1.4).
class Perde {
 public:
  virtual ~Perde() = default;
  virtual bool bagli() const = 0;  // still in the container (has a superview)
  virtual void sondur(double sure, std::function<void()> bitince) = 0;  // alpha to 0
  virtual void kaldir() = 0;  // take it out of the container
};

}  // namespace nevo
