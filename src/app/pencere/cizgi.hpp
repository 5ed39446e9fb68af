#pragma once

namespace nevo {

// A straight stroke from (x1, y1) to (x2, y2), counted from the top left of its square.
struct Cizgi {
  double x1;
  double y1;
  double x2;
  double y2;
};

}  // namespace nevo
