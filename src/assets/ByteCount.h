#pragma once

#include <QString>

namespace tarnloft {

// A file's size as a person reads it, in powers of 1000: "Zero KB", "1 byte", "512 bytes", "38 KB",
// "2.4 MB", "1.25 GB". `bytes` is not negative.
QString byteCountText(qint64 bytes);

}  // namespace tarnloft
