#include "model/Rounding.h"

#include <cmath>
#include <cstdlib>

namespace tarnloft {

bool fitsInteger(double value) {
  constexpr double limit = 9223372036854775808.0;  // 2^63, the first value that doesn't fit
  const double whole = std::round(value);
  return whole >= -limit && whole < limit;
}

qint64 rounded(double value) {
  if (!fitsInteger(value)) std::abort();
  return static_cast<qint64>(std::round(value));
}

}  // namespace tarnloft
