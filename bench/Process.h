#pragma once

#include <QByteArray>
#include <QElapsedTimer>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

// Whole programs, timed.
namespace tarnloft {

struct Cost {
  double seconds = 0;
  double peakMegabytes = 0;
};

// Runs a program to its end; stops the benchmark if it fails.
inline Cost run(const std::vector<QByteArray>& command) {
  std::vector<char*> arguments;
  for (const QByteArray& word : command) arguments.push_back(const_cast<char*>(word.constData()));
  arguments.push_back(nullptr);
  QElapsedTimer clock;
  clock.start();
  pid_t child = 0;
  int status = 1;
  rusage usage{};
  if (::posix_spawnp(&child, arguments[0], nullptr, nullptr, arguments.data(), environ) != 0 ||
      ::wait4(child, &status, 0, &usage) < 0 || status != 0) {
    std::fprintf(stderr, "%s failed\n", arguments[0]);
    std::exit(1);
  }
  return {double(clock.nsecsElapsed()) / 1e9, double(usage.ru_maxrss) / 1024};
}

template <class Value>
double medianOf(const std::vector<Cost>& costs, Value&& value) {
  std::vector<double> values;
  for (const Cost& cost : costs) values.push_back(value(cost));
  std::sort(values.begin(), values.end());
  return values[values.size() / 2];
}

inline double medianSeconds(const std::vector<Cost>& costs) {
  return medianOf(costs, [](const Cost& cost) { return cost.seconds; });
}

inline double medianPeak(const std::vector<Cost>& costs) {
  return medianOf(costs, [](const Cost& cost) { return cost.peakMegabytes; });
}

}  // namespace tarnloft
