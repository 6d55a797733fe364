#pragma once

#include "document/UndoHistory.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace tarnloft {

// A window's undo, as its menus show it and carry it out. Main thread.
class WindowUndo : public QObject, public UndoHistory {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Each window has one")
  Q_PROPERTY(bool canUndo READ canUndo NOTIFY changed)
  Q_PROPERTY(bool canRedo READ canRedo NOTIFY changed)
  Q_PROPERTY(QString undoText READ undoText NOTIFY changed)
  Q_PROPERTY(QString redoText READ redoText NOTIFY changed)

 public:
  explicit WindowUndo(QObject* parent = nullptr) : QObject(parent) {}

  // The menu's entries: "Undo Delete", or "Undo" alone for nothing or a step without a name.
  QString undoText() const;
  QString redoText() const;

  Q_INVOKABLE void undo() { UndoHistory::undo(); }
  Q_INVOKABLE void redo() { UndoHistory::redo(); }

 signals:
  void changed();

 protected:
  void historyChanged() override { emit changed(); }
};

}  // namespace tarnloft
