#include "model/Rounding.h"

#include <cmath>
#include <cstdlib>

namespace tarnloft {

qint64 rounded(double value) {
  constexpr double limit = 9223372036854775808.0;  // 2^63, the first value that doesn't fit
  const double whole = std::round(value);
  if (!(whole >= -limit && whole < limit)) std::abort();
  return static_cast<qint64>(whole);
}

}  // namespace tarnloft
