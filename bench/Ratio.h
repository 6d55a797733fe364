#pragma once

#include <cstdio>

namespace tarnloft {

enum class Aim { atMost, atLeast };

// One row: a measured ratio beside its aim.
inline void printRatio(const char* what, double ratio, Aim aim, double bound) {
  const bool met = aim == Aim::atMost ? ratio <= bound : ratio >= bound;
  std::printf("%-66s %7.2fx  (aim: %s %gx)  %s\n", what, ratio,
              aim == Aim::atMost ? "at most" : "at least", bound, met ? "met" : "MISSED");
  std::fflush(stdout);
}

}  // namespace tarnloft
