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

  // Whether a key with that text is one that writes, anything but a space; Esc and Delete have a
  // text as well.
  Q_INVOKABLE static bool writes(const QString& text, int modifiers) {
    constexpr int commands = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    const bool isInk = !text.isEmpty() && !text.at(0).isSpace() &&
                       (text.at(0).isPrint() || text.at(0).isSurrogate());
    return isInk && !(modifiers & commands);
  }
};

}  // namespace tarnloft
