#pragma once

#include <QtGlobal>

namespace tarnloft {

// True if the number, rounded, fits a 64-bit integer.
bool fitsInteger(double value);

// Nearest integer, halves away from zero. A number that is not finite or doesn't fit is a
// programming error and stops the process.
qint64 rounded(double value);

}  // namespace tarnloft
