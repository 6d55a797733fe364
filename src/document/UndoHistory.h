#pragma once

#include "document/UndoManager.h"

#include <QList>

namespace tarnloft {

// Undo and redo in memory. A step that registers no inverse, as its document has gone, is dropped.
class UndoHistory : public UndoManager {
 public:
  void registerUndo(std::function<void()> step) override;
  // Does nothing if the step registered last was dropped, or none was.
  void setActionName(const QString& name) override;

  bool canUndo() const { return !undo_.isEmpty(); }
  bool canRedo() const { return !redo_.isEmpty(); }
  // Empty if there is nothing to undo or redo.
  QString undoActionName() const { return undo_.isEmpty() ? QString() : undo_.last().name; }
  QString redoActionName() const { return redo_.isEmpty() ? QString() : redo_.last().name; }

  // Nothing happens if there is nothing to undo or redo.
  void undo();
  void redo();
  // Forgets all steps.
  void clear();

 protected:
  // What can be undone or redone, or its name, is another one.
  virtual void historyChanged() {}

 private:
  struct Step {
    std::function<void()> run;
    QString name;
  };
  using Steps = QList<Step>;
  enum class Running { nothing, undo, redo };

  void runLast(Steps& steps, Running running);
  Steps& target() { return running_ == Running::undo ? redo_ : undo_; }

  Steps undo_;
  Steps redo_;
  Steps* latest_ = nullptr;  // whose last step was registered last
  Running running_ = Running::nothing;
};

}  // namespace tarnloft
