#include "model/Characters.h"

#include <QTextBoundaryFinder>

namespace tarnloft {

QString firstCharacter(const QString& text) {
  QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
  return text.left(finder.toNextBoundary());
}

QString lastCharacter(const QString& text) {
  QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
  finder.toEnd();
  return text.mid(finder.toPreviousBoundary());
}

}  // namespace tarnloft
