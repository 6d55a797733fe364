#include "document/UndoHistory.h"

#include <QScopedValueRollback>

namespace tarnloft {

void UndoHistory::registerUndo(std::function<void()> step) {
  if (running_ == Running::nothing) redo_.clear();
  latest_ = &target();
  latest_->append({std::move(step), QString()});
  historyChanged();
}

void UndoHistory::setActionName(const QString& name) {
  if (!latest_ || latest_->isEmpty()) return;
  latest_->last().name = name;
  historyChanged();
}

void UndoHistory::undo() { runLast(undo_, Running::undo); }

void UndoHistory::redo() { runLast(redo_, Running::redo); }

void UndoHistory::runLast(Steps& steps, Running running) {
  if (steps.isEmpty()) return;
  const Step step = steps.takeLast();
  latest_ = nullptr;
  {
    const QScopedValueRollback scope(running_, running);
    step.run();
  }
  historyChanged();
}

void UndoHistory::clear() {
  undo_.clear();
  redo_.clear();
  latest_ = nullptr;
  historyChanged();
}

}  // namespace tarnloft
