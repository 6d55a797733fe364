#include "model/SearchText.h"

#include <QLocale>

namespace tarnloft {

QString foldedForSearch(const QString& text) {
  // File names of some systems come decomposed; languages differ in what the lower case of I is.
  const QString composed = text.normalized(QString::NormalizationForm_C);
  const QLocale locale;
  const bool dotless =
      locale.language() == QLocale::Turkish || locale.language() == QLocale::Azerbaijani;
  return (dotless ? locale.toLower(composed) : composed).toCaseFolded();
}

}  // namespace tarnloft
