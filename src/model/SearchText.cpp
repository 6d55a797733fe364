#include "model/SearchText.h"

#include "model/Utf8.h"

#include <algorithm>

namespace tarnloft {
namespace {

char lowered(char c) { return c >= 'A' && c <= 'Z' ? char(c - 'A' + 'a') : c; }

}  // namespace

SearchFolding::SearchFolding()
    : dotless_(locale_.language() == QLocale::Turkish ||
               locale_.language() == QLocale::Azerbaijani) {}

QString SearchFolding::folded(const QString& text) const {
  // File names of some systems come decomposed.
  const QString composed = text.normalized(QString::NormalizationForm_C);
  return (dotless_ ? locale_.toLower(composed) : composed).toCaseFolded();
}

void SearchFolding::append(const QString& text, std::string& utf8) const {
  const QByteArray bytes = text.toUtf8();
  append(std::string_view(bytes.constData(), size_t(bytes.size())), utf8);
}

void SearchFolding::append(std::string_view text, std::string& utf8) const {
  if (dotless_ || !isAscii(text)) return appendUtf8(folded(textFromUtf8(text)), utf8);
  const auto start = std::ptrdiff_t(utf8.size());
  utf8 += text;
  std::transform(utf8.begin() + start, utf8.end(), utf8.begin() + start, lowered);
}

}  // namespace tarnloft
