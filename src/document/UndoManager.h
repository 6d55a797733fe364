#pragma once

#include <QString>

#include <functional>

namespace tarnloft {

// A window's undo, as documents know it: a step is registered with what takes it back, and while
// that runs it registers its own inverse. Main thread.
class UndoManager {
 public:
  virtual ~UndoManager() = default;

  // Adds a step to undo; during an undo, one to redo. A new step drops what could be redone.
  virtual void registerUndo(std::function<void()> step) = 0;

  // Names the step registered last, such as "Delete".
  virtual void setActionName(const QString& name) = 0;
};

}  // namespace tarnloft
