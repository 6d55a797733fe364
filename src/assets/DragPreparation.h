#pragma once

#include "platform/DragSession.h"

#include <QThreadPool>

#include <chrono>
#include <future>

namespace tarnloft {

// Makes what is dragged ready away from the main thread, because a file is copied for it, and waits
// for that only so long: the disk may be slow, or not answer. Main thread; the pool outlives it.
class DragPreparation {
 public:
  explicit DragPreparation(QThreadPool& threads) : threads_(threads) {}

  // Begins, so that the next `make` for that key needn't wait as long.
  void begin(const QString& key, std::function<QList<DragItem>()> work);
  // None if it takes longer. It goes on then, and the next call gets it if it is for the same
  // thing, which the key tells from others.
  std::optional<QList<DragItem>> make(const QString& key, std::function<QList<DragItem>()> work,
                                      std::chrono::milliseconds patience);

 private:
  QThreadPool& threads_;
  QString key_;
  std::shared_future<QList<DragItem>> underWay_;  // what was waited for in vain
};

}  // namespace tarnloft
