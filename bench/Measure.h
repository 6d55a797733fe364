#pragma once

#include <QFile>

#include <algorithm>
#include <vector>

namespace tarnloft {

inline double median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  return values.at(values.size() / 2);
}

// Of this process.
inline double residentMegabytes() {
  QFile status("/proc/self/statm");
  if (!status.open(QIODevice::ReadOnly)) return 0;
  return status.readAll().split(' ').at(1).toDouble() * 4096 / 1e6;
}

}  // namespace tarnloft
