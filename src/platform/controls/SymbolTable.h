#pragma once

#include <QFont>
#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace tarnloft {

// The system symbols, for QML.
class SymbolTable : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_SINGLETON

 public:
  using QObject::QObject;

  // The character of a symbol in `font`; empty for a name that isn't in the table.
  Q_INVOKABLE QString glyph(const QString& name) const;

  Q_INVOKABLE QFont font(int pixelSize, int weight = QFont::Normal) const;
};

}  // namespace tarnloft
