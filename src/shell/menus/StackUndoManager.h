#pragma once

#include "document/UndoManager.h"

#include <QObject>
#include <QUndoStack>
#include <QtQml/qqmlregistration.h>

namespace tarnloft {

// A window's undo and redo, for its menu. A step that registers no inverse while it runs, because
// what it worked on has gone, is dropped.
class StackUndoManager : public QObject, public UndoManager {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Each window has one")
  Q_PROPERTY(bool canUndo READ canUndo NOTIFY changed)
  Q_PROPERTY(bool canRedo READ canRedo NOTIFY changed)
  Q_PROPERTY(QString undoText READ undoText NOTIFY changed)
  Q_PROPERTY(QString redoText READ redoText NOTIFY changed)

 public:
  explicit StackUndoManager(QObject* parent = nullptr);

  void registerUndo(std::function<void()> step) override;
  void setActionName(const QString& name) override;

  bool canUndo() const { return stack_.canUndo(); }
  bool canRedo() const { return stack_.canRedo(); }
  // The menu's entries: "Undo Delete", or "Undo" alone for nothing or a step without a name.
  QString undoText() const;
  QString redoText() const;

  // Nothing happens if there is nothing to undo or redo.
  Q_INVOKABLE void undo() { stack_.undo(); }
  Q_INVOKABLE void redo() { stack_.redo(); }
  // Forgets all steps.
  void clear();

 signals:
  void changed();

 private:
  class Step;

  QUndoStack stack_;
  Step* running_ = nullptr;  // while it runs
  Step* latest_ = nullptr;   // the one that was registered last
};

}  // namespace tarnloft
