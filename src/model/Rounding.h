#pragma once

#include <QtGlobal>

namespace tarnloft {

// Nearest integer, halves away from zero. A number that is not finite or doesn't fit is a
// programming error and stops the process.
qint64 rounded(double value);

}  // namespace tarnloft
