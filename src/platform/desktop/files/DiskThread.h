#pragma once

#include "platform/DiskWork.h"

#include <QDeadlineTimer>
#include <QObject>

namespace tarnloft {

// The disk's own thread. An end waits for a turn of the event loop, unless the call that asked for
// it, or `finish`, waits. Destruction waits a moment for what runs just now, and leaves a thread
// that a disk holds up to itself.
class DiskThread : public QObject, public DiskWork {
 public:
  // The longest time that calls hold up one turn of the event loop.
  static constexpr std::chrono::milliseconds turnPatience{30};

  DiskThread();
  ~DiskThread() override;

  void run(std::function<void()> work, std::function<void()> done, Patience patience) override;
  bool finish(std::chrono::milliseconds patience) override;

 private:
  struct Task;
  struct Shared;

  QDeadlineTimer turnDeadline();
  bool deliver();  // true if there was anything

  const std::shared_ptr<Shared> shared_;
  std::optional<QDeadlineTimer> turn_;  // from the first wait of a turn to its end
  bool isDelivering_ = false;
};

}  // namespace tarnloft
