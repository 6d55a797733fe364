#pragma once

#include "platform/DesktopWords.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace tarnloft {

// Texts as the running desktop says them, for QML.
class Words : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_SINGLETON

 public:
  using QObject::QObject;

  Q_INVOKABLE static QString here(const QString& text) { return inDesktopWords(text); }
};

}  // namespace tarnloft
