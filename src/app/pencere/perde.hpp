#pragma once
#include <functional>
#include <string>

namespace nevo {

// An opaque colour: red, green and blue, each from 0 to 1.
struct Renk {
  double kirmizi;
  double yesil;
  double mavi;
};

// The colour as CSS writes it, each channel rounded to a whole 0…255: "rgb(5,5,8)".
std::string cssRengi(Renk renk);

// The loading curtain: it covers the page until the page shows text, then fades out.
class Perde {
 public:
  static constexpr Renk RENK{0.02, 0.02, 0.03};  // near black
  // The side of the application's icon on the curtain; where it sits: perdeYerlesimi.
  static constexpr double SIMGE = 84;

  virtual ~Perde() = default;
  virtual bool bagli() const = 0;  // still in the container (has a superview)
  virtual void sondur(double sure, std::function<void()> bitince) = 0;  // alpha to 0
  virtual void kaldir() = 0;  // take it out of the container
  // Cover the page again: back in the container where it was, opaque, a fade stopped.
  virtual void ort() = 0;
};

}  // namespace nevo
