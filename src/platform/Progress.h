#pragma once

#include "model/Error.h"

#include <QtGlobal>

#include <algorithm>
#include <atomic>

namespace tarnloft {

// How far a piece of work is that may take long, told by those who do it, and whether it is still
// wanted, told by those who asked for it. Any thread.
class Progress {
 public:
  // So much more is to be done, in a unit of the work's own.
  void expect(qint64 amount) { expected_ += amount; }
  // So much more has been done. Fails if nothing more is wanted; the work ends then, and leaves
  // nothing.
  Result<void> advance(qint64 amount) {
    done_ += amount;
    if (!isCancelled_) return {};
    return failure(ErrorKind::cancelled, QStringLiteral("It was cancelled"));
  }

  // From 0 to 1; 0 while nobody knows.
  double share() const {
    const qint64 expected = expected_;
    return expected > 0 ? std::clamp(double(done_) / double(expected), 0.0, 1.0) : 0;
  }
  void cancel() { isCancelled_ = true; }

 private:
  std::atomic<qint64> expected_ = 0;
  std::atomic<qint64> done_ = 0;
  std::atomic<bool> isCancelled_ = false;
};

}  // namespace tarnloft
