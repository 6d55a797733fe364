#include "assets/BackgroundWork.h"

#include <QThread>

#include <algorithm>
#include <utility>

namespace tarnloft {

void BackgroundWork::Task::raise() {
  const auto queue = queue_.lock();
  if (!queue) return;
  if (const TaskPtr task = queue->take(*this)) queue->put(task);
}

bool BackgroundWork::Task::drop() {
  const auto queue = queue_.lock();
  return queue && queue->take(*this);
}

BackgroundWork::TaskPtr BackgroundWork::Queue::take(const Task& task) {
  const QMutexLocker lock(&mutex);
  const auto place = std::ranges::find(waiting, &task, &TaskPtr::get);
  if (place == waiting.end()) return nullptr;
  TaskPtr taken = std::move(*place);
  waiting.erase(place);
  return taken;
}

BackgroundWork::TaskPtr BackgroundWork::Queue::takeNewest() {
  const QMutexLocker lock(&mutex);
  if (waiting.empty()) return nullptr;
  TaskPtr taken = std::move(waiting.back());
  waiting.pop_back();
  return taken;
}

void BackgroundWork::Queue::put(const TaskPtr& task) {
  const QMutexLocker lock(&mutex);
  waiting.push_back(task);
}

// What they hold goes without the lock, as it may be the end of a requester.
void BackgroundWork::Queue::clear() {
  std::vector<TaskPtr> forgotten;
  const QMutexLocker lock(&mutex);
  forgotten.swap(waiting);
}

int BackgroundWork::utilityThreads() { return qMax(1, QThread::idealThreadCount() - 1); }

BackgroundWork::BackgroundWork(int threads) {
  threads_.setMaxThreadCount(threads);
  threads_.setThreadPriority(QThread::LowPriority);
}

BackgroundWork::~BackgroundWork() {
  queue_->clear();
  threads_.waitForDone();
}

BackgroundWork::TaskPtr BackgroundWork::start(std::function<void()> work,
                                              std::function<void()> done) {
  auto task = std::make_shared<Task>();
  task->queue_ = queue_;
  task->work_ = std::move(work);
  task->done_ = std::move(done);
  queue_->put(task);
  ++held_;
  if (!isHeld_) resume();
  return task;
}

void BackgroundWork::resume() {
  isHeld_ = false;
  for (; held_ > 0; --held_) threads_.start([this] { runNewest(); });
}

bool BackgroundWork::finish(std::chrono::milliseconds patience) {
  queue_->clear();
  return threads_.waitForDone(int(patience.count()));
}

// There is one call for each task ever started, so that a dropped one leaves a call without work.
void BackgroundWork::runNewest() {
  const TaskPtr task = queue_->takeNewest();
  if (!task) return;
  task->work_();
  // Its requester may keep the task, and needn't keep what the functions hold.
  task->work_ = nullptr;
  QMetaObject::invokeMethod(
      this, [task] { std::exchange(task->done_, nullptr)(); }, Qt::QueuedConnection);
}

}  // namespace tarnloft
