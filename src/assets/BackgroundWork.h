#pragma once

#include <QMutex>
#include <QObject>
#include <QThreadPool>

#include <chrono>
#include <functional>
#include <memory>
#include <vector>

namespace tarnloft {

// Threads for work that nobody waits for, the most recently asked first. All calls on the thread
// that made it, the main thread. Destruction forgets what hasn't begun and waits for what has.
class BackgroundWork : public QObject {
  struct Queue;

 public:
  // One piece of work, for who asked for it. It may outlive the threads, and does nothing then.
  class Task {
   public:
    // Makes it the next one, if it hasn't begun.
    void raise();
    // Forgets it, if it hasn't begun: true if so. Neither of its functions is called then.
    bool drop();

   private:
    friend class BackgroundWork;
    std::weak_ptr<Queue> queue_;
    std::function<void()> work_;
    std::function<void()> done_;
  };
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
  // Forgets what hasn't begun and waits for what has, at most so long; false if it still runs.
  bool finish(std::chrono::milliseconds patience);

 private:
  struct Queue {
    QMutex mutex;
    std::vector<TaskPtr> waiting;  // the newest last

    // Gives it if it was waiting.
    TaskPtr take(const Task& task);
    TaskPtr takeNewest();
    void put(const TaskPtr& task);
    void clear();
  };

  void runNewest();

  bool isHeld_ = false;
  int held_ = 0;  // tasks asked meanwhile
  const std::shared_ptr<Queue> queue_ = std::make_shared<Queue>();
  QThreadPool threads_;  // the last member: its threads use the others
};

}  // namespace tarnloft
