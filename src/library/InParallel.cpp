#include "library/InParallel.h"

#include <algorithm>
#include <atomic>
#include <system_error>
#include <thread>
#include <vector>

namespace tarnloft {
namespace {

// Starting a thread costs about as much as reading this many manifests.
constexpr qsizetype worthAThread = 8;

qsizetype helpersFor(qsizetype count) {
  const auto cores = qsizetype(std::thread::hardware_concurrency());  // 0 if that isn't known
  return std::max<qsizetype>(0, std::min(cores, count / worthAThread) - 1);
}

}  // namespace

void inParallel(qsizetype count, const std::function<void(qsizetype)>& work) {
  std::atomic<qsizetype> next = 0;
  const auto takeTurns = [&] {
    for (qsizetype i = next++; i < count; i = next++) work(i);
  };
  std::vector<std::jthread> helpers;
  try {
    for (qsizetype i = helpersFor(count); i > 0; --i) helpers.emplace_back(takeTurns);
  } catch (const std::system_error&) {
    // No more threads are to be had; those that there are do it all.
  }
  takeTurns();
}

}  // namespace tarnloft
