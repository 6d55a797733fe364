#pragma once

#include <QString>

#include <functional>
#include <memory>

namespace tarnloft {

// A window's undo, as documents know it: a step is registered with what takes it back, and while
// that runs it registers its own inverse. Main thread.
class UndoManager {
 public:
  UndoManager() = default;
  virtual ~UndoManager() = default;
  UndoManager(const UndoManager&) = delete;
  UndoManager& operator=(const UndoManager&) = delete;

  // Adds a step to undo; during an undo, one to redo. A new step drops what could be redone.
  virtual void registerUndo(std::function<void()> step) = 0;

  // Names the step registered last, such as "Delete".
  virtual void setActionName(const QString& name) = 0;

  // For those who may come back to a window that has been closed: null by then.
  std::weak_ptr<UndoManager> handle() const { return self_; }

 private:
  const std::shared_ptr<UndoManager> self_{this, [](UndoManager*) {}};
};

}  // namespace tarnloft
