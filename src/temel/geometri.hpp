#pragma once

namespace nevo {

struct Olcu {
  double en = 0;
  double boy = 0;
  bool operator==(const Olcu&) const = default;
};

// A rectangle; inside a view the origin is at the bottom left (as AppKit has it).
// Window frames keep whatever screen coordinates the platform uses.
struct Cerceve {
  double x = 0;
  double y = 0;
  double en = 0;
  double boy = 0;
  bool operator==(const Cerceve&) const = default;
};

}  // namespace nevo
