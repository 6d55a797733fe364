#pragma once

#include <QKeySequence>
#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace tarnloft {

// Key combinations as the desktop writes them, for QML.
class KeyText : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_SINGLETON

 public:
  using QObject::QObject;

  // "Ctrl+Shift+E" for a portable text such as "Ctrl+Shift+E"; empty for one that isn't a key.
  Q_INVOKABLE static QString display(const QString& keys) {
    return QKeySequence(keys).toString(QKeySequence::NativeText);
  }
};

}  // namespace tarnloft
