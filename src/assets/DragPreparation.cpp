#include "assets/DragPreparation.h"

#include <memory>
#include <utility>

namespace tarnloft {

void DragPreparation::begin(const QString& key, std::function<QList<DragItem>()> work) {
  if (underWay_.valid() && key_ == key) return;
  const auto task = std::make_shared<std::packaged_task<QList<DragItem>()>>(std::move(work));
  key_ = key;
  underWay_ = task->get_future();
  threads_.start([task] { (*task)(); });
}

std::optional<QList<DragItem>> DragPreparation::make(const QString& key,
                                                     std::function<QList<DragItem>()> work,
                                                     std::chrono::milliseconds patience) {
  begin(key, std::move(work));
  if (underWay_.wait_for(patience) != std::future_status::ready) return std::nullopt;
  return std::exchange(underWay_, {}).get();
}

}  // namespace tarnloft
