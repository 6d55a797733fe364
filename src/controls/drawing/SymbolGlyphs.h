#pragma once

#include <QFont>
#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace tarnloft {

// The symbol table for QML; views use `Symbol`.
class SymbolGlyphs : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_SINGLETON

 public:
  using QObject::QObject;

  // The character of a symbol in `font`; empty for a name that isn't in the table.
  Q_INVOKABLE static QString text(const QString& name);

  // A glyph fills a square of `pixelSize`.
  Q_INVOKABLE static QFont font(int pixelSize, int weight);
};

}  // namespace tarnloft
