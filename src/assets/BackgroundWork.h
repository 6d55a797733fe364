#pragma once

#include <QMutex>
#include <QObject>
#include <QThreadPool>

#include <functional>
#include <memory>
#include <vector>

namespace tarnloft {

// Threads for work that nobody waits for, the most recently asked first. All calls on the thread
// that made it, the main thread. Destruction forgets what hasn't begun and waits for what has.
class BackgroundWork : public QObject {
 public:
  class Task;
  using TaskPtr = std::shared_ptr<Task>;

  // As many threads as leave one core to the interface, and at least one.
  static int utilityThreads();

  explicit BackgroundWork(int threads = utilityThreads());
  ~BackgroundWork() override;

  // `work` runs on one of the threads, then `done` on the main thread.
  TaskPtr start(std::function<void()> work, std::function<void()> done);
  // What is asked from now on waits until `resume`.
  void hold() { isHeld_ = true; }
  void resume();
  // Makes it the next one, if it hasn't begun.
  void raise(const TaskPtr& task);
  // Forgets it, if it hasn't begun: true if so. Neither function is called then.
  bool drop(const TaskPtr& task);

 private:
  void runNewest();
  bool takeWaiting(const TaskPtr& task);

  bool isHeld_ = false;
  int held_ = 0;  // tasks asked meanwhile
  QMutex mutex_;
  std::vector<TaskPtr> waiting_;  // the newest last
  QThreadPool threads_;           // the last member: its threads use the others
};

}  // namespace tarnloft
