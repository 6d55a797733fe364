#include "platform/desktop/files/DiskThread.h"

#include <QScopedValueRollback>

#include <condition_variable>
#include <deque>
#include <mutex>
#include <thread>

namespace tarnloft {

using namespace std::chrono_literals;

struct DiskThread::Task {
  std::function<void()> work;
  std::function<void()> done;
};

// Outlives the object where the thread does. A task stands in `asked` until its work is done.
struct DiskThread::Shared {
  std::mutex mutex;
  std::condition_variable changed;
  std::deque<Task> asked;
  std::deque<Task> worked;
  DiskThread* owner = nullptr;  // null once it has gone
  bool hasEnded = false;

  void serve();
  bool isIdle() const { return asked.empty(); }
};

void DiskThread::Shared::serve() {
  std::unique_lock lock(mutex);
  for (;;) {
    changed.wait(lock, [&] { return !owner || !asked.empty(); });
    if (!owner) break;
    Task& task = asked.front();  // stays in place while others are put behind it
    lock.unlock();
    task.work();
    task.work = nullptr;
    lock.lock();
    worked.push_back(std::move(task));
    asked.pop_front();
    changed.notify_all();
    if (owner)
      QMetaObject::invokeMethod(
          owner, [o = owner] { (void)o->deliver(); }, Qt::QueuedConnection);
  }
  hasEnded = true;
  changed.notify_all();
}

DiskThread::DiskThread() : shared_(std::make_shared<Shared>()) {
  shared_->owner = this;
  std::thread([shared = shared_] { shared->serve(); }).detach();
}

DiskThread::~DiskThread() {
  std::unique_lock lock(shared_->mutex);
  shared_->owner = nullptr;
  shared_->changed.notify_all();
  shared_->changed.wait_for(lock, 1s, [&] { return shared_->hasEnded; });
}

void DiskThread::run(std::function<void()> work, std::function<void()> done, Patience patience) {
  std::unique_lock lock(shared_->mutex);
  shared_->asked.push_back({std::move(work), std::move(done)});
  shared_->changed.notify_all();
  if (patience == Patience::none || isDelivering_) return;
  const auto remaining = turnDeadline().remainingTimeAsDuration();
  shared_->changed.wait_for(lock, remaining, [&] { return shared_->isIdle(); });
  lock.unlock();
  (void)deliver();
}

// Several waits in one turn share its time.
QDeadlineTimer DiskThread::turnDeadline() {
  if (!turn_) {
    turn_ = QDeadlineTimer(turnPatience, Qt::PreciseTimer);
    QMetaObject::invokeMethod(
        this, [this] { turn_.reset(); }, Qt::QueuedConnection);
  }
  return *turn_;
}

// May run within itself, from an end's own event loop; the order of ends stays.
bool DiskThread::deliver() {
  const QScopedValueRollback delivering(isDelivering_, true);
  std::unique_lock lock(shared_->mutex);
  const bool isAny = !shared_->worked.empty();
  while (!shared_->worked.empty()) {
    const Task task = std::move(shared_->worked.front());
    shared_->worked.pop_front();
    lock.unlock();
    task.done();
    lock.lock();
  }
  return isAny;
}

bool DiskThread::finish(std::chrono::milliseconds patience) {
  QDeadlineTimer deadline(patience, Qt::PreciseTimer);
  for (;;) {
    if (deliver()) deadline.setRemainingTime(patience, Qt::PreciseTimer);
    std::unique_lock lock(shared_->mutex);
    if (shared_->isIdle() && shared_->worked.empty()) return true;
    if (deadline.hasExpired()) return false;
    shared_->changed.wait_for(lock, deadline.remainingTimeAsDuration(),
                              [&] { return !shared_->worked.empty(); });
  }
}

}  // namespace tarnloft
