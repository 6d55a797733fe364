#pragma once

#include "document/UndoManager.h"

#include <QList>

namespace tarnloft {

// Undo and redo in memory.
class UndoHistory : public UndoManager {
 public:
  void registerUndo(std::function<void()> step) override;
  void setActionName(const QString& name) override;

  bool canUndo() const { return !undo_.isEmpty(); }
  bool canRedo() const { return !redo_.isEmpty(); }
  // Empty if there is nothing to undo or redo.
  QString undoActionName() const { return undo_.isEmpty() ? QString() : undo_.last().name; }
  QString redoActionName() const { return redo_.isEmpty() ? QString() : redo_.last().name; }

  // Nothing happens if there is nothing to undo or redo.
  void undo();
  void redo();

 private:
  struct Step {
    std::function<void()> run;
    QString name;
  };
  enum class Running { nothing, undo, redo };

  void runLast(QList<Step>& steps, Running running);
  QList<Step>& target() { return running_ == Running::undo ? redo_ : undo_; }

  QList<Step> undo_;
  QList<Step> redo_;
  Running running_ = Running::nothing;
};

}  // namespace tarnloft
