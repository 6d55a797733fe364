#include "assets/BackgroundWork.h"

#include <QThread>

#include <algorithm>

namespace tarnloft {

class BackgroundWork::Task {
 public:
  std::function<void()> work;
  std::function<void()> done;
};

int BackgroundWork::utilityThreads() { return qMax(1, QThread::idealThreadCount() - 1); }

BackgroundWork::BackgroundWork(int threads) {
  threads_.setMaxThreadCount(threads);
  threads_.setThreadPriority(QThread::LowPriority);
}

BackgroundWork::~BackgroundWork() {
  {
    const QMutexLocker lock(&mutex_);
    waiting_.clear();
  }
  threads_.waitForDone();
}

BackgroundWork::TaskPtr BackgroundWork::start(std::function<void()> work,
                                              std::function<void()> done) {
  auto task = std::make_shared<Task>(Task{std::move(work), std::move(done)});
  {
    const QMutexLocker lock(&mutex_);
    waiting_.push_back(task);
  }
  ++held_;
  if (!isHeld_) resume();
  return task;
}

void BackgroundWork::resume() {
  isHeld_ = false;
  for (; held_ > 0; --held_) threads_.start([this] { runNewest(); });
}

void BackgroundWork::raise(const TaskPtr& task) {
  const QMutexLocker lock(&mutex_);
  if (takeWaiting(task)) waiting_.push_back(task);
}

bool BackgroundWork::drop(const TaskPtr& task) {
  const QMutexLocker lock(&mutex_);
  return takeWaiting(task);
}

// With the lock held.
bool BackgroundWork::takeWaiting(const TaskPtr& task) {
  const auto place = std::find(waiting_.begin(), waiting_.end(), task);
  if (place == waiting_.end()) return false;
  waiting_.erase(place);
  return true;
}

// There is one call for each task ever started, so that a dropped one leaves a call without work.
void BackgroundWork::runNewest() {
  TaskPtr task;
  {
    const QMutexLocker lock(&mutex_);
    if (waiting_.empty()) return;
    task = std::move(waiting_.back());
    waiting_.pop_back();
  }
  task->work();
  QMetaObject::invokeMethod(
      this, [task = std::move(task)] { task->done(); }, Qt::QueuedConnection);
}

}  // namespace tarnloft
