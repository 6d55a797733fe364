#include "document/UndoHistory.h"

#include <QScopedValueRollback>

namespace tarnloft {

void UndoHistory::registerUndo(std::function<void()> step) {
  if (running_ == Running::nothing) redo_.clear();
  target().append({std::move(step), QString()});
}

void UndoHistory::setActionName(const QString& name) {
  if (!target().isEmpty()) target().last().name = name;
}

void UndoHistory::undo() { runLast(undo_, Running::undo); }

void UndoHistory::redo() { runLast(redo_, Running::redo); }

void UndoHistory::runLast(QList<Step>& steps, Running running) {
  if (steps.isEmpty()) return;
  const Step step = steps.takeLast();
  const QScopedValueRollback scope(running_, running);
  step.run();
}

}  // namespace tarnloft
