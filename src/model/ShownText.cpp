#include "model/ShownText.h"

namespace tarnloft {

QString shownText(const QString& text, qsizetype most) {
  if (text.size() <= most) return text;
  const bool isPairSplit = text.at(most - 1).isHighSurrogate();
  return text.left(isPairSplit ? most - 1 : most) + QChar(u'…');
}

}  // namespace tarnloft
