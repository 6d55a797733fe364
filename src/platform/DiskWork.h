#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <type_traits>

namespace tarnloft {

// Work on the disk away from the main thread, so that a disk that is slow or doesn't answer holds
// nothing up. What is asked for runs in that order, one after the other; so do the ends, which run
// on the main thread. All calls on the main thread.
class DiskWork {
 public:
  enum class Patience {
    none,
    moment  // a frame or two, once in a turn of the event loop: on a quick disk the end has come
  };

  virtual ~DiskWork() = default;

  // Runs `work` away from the main thread and then `done` on it: before this returns if patience
  // was enough, else in a later turn of the event loop. Called in an end, it never waits.
  virtual void run(std::function<void()> work, std::function<void()> done, Patience patience) = 0;

  // Waits until all that was asked for has ended, ends included. Gives up, with false, when nothing
  // has ended for so long.
  virtual bool finish(std::chrono::milliseconds patience) = 0;

  // `done` gets what `work` gave.
  template <class Work, class Done>
  void ask(Work work, Done done, Patience patience = Patience::moment) {
    const auto answer = std::make_shared<std::optional<std::invoke_result_t<Work>>>();
    run([answer, work = std::move(work)] { answer->emplace(work()); },
        [answer, done = std::move(done)] { done(std::move(**answer)); }, patience);
  }
};

// Does everything at once where it is asked for: for the modes without a window, which have nothing
// to hold up.
class ImmediateDisk : public DiskWork {
 public:
  void run(std::function<void()> work, std::function<void()> done, Patience) override {
    work();
    done();
  }
  bool finish(std::chrono::milliseconds) override { return true; }
};

inline DiskWork& immediateDisk() {
  static ImmediateDisk disk;
  return disk;
}

}  // namespace tarnloft
