#pragma once
#include <functional>

namespace nevo {

// A colour, opaque: red, green and blue out of 255.
struct Renk {
  int kirmizi;
  int yesil;
  int mavi;
};

// The loading curtain: it covers the page until the page shows text, then fades out.
class Perde {
 public:
  static constexpr Renk RENK{5, 5, 8};  // near black
  // The side of the application's icon on the curtain; where it sits: perdeYerlesimi.
  static constexpr double SIMGE = 84;

  virtual ~Perde() = default;
  virtual bool bagli() const = 0;  // still in the container (has a superview)
  virtual void sondur(double sure, std::function<void()> bitince) = 0;  // alpha to 0
  virtual void kaldir() = 0;  // take it out of the container
};

}  // namespace nevo
