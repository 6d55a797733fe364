#include "sheets/emblems/EmblemSymbolList.h"

#include "controls/symbols/SymbolTable.h"
#include "pictures/EmblemSymbols.h"

#include <QRegularExpression>

#include <algorithm>

namespace tarnloft {
namespace {

QString text(std::u16string_view view) {
  return QStringView(view.data(), qsizetype(view.size())).toString();
}

QString source(std::u16string_view name) {
  const auto all = symbols::table();
  const auto found = std::ranges::lower_bound(all, name, {}, &symbols::Symbol::name);
  if (found == all.end() || found->name != name) return {};
  return QString::fromUtf8(found->source.data(), qsizetype(found->source.size()));
}

QStringList wordsOf(const QString& text) {
  static const QRegularExpression gap(QStringLiteral("[^\\p{L}\\p{N}]+"));
  return text.toLower().split(gap, Qt::SkipEmptyParts);
}

struct SearchedSymbol {
  QString name;
  QString words;  // each behind a blank
};

// How a shape is drawn isn't what it shows.
bool tells(const QString& word) {
  return word != QLatin1String("fill") && word != QLatin1String("drawn");
}

const QList<SearchedSymbol>& searched() {
  static const QList<SearchedSymbol> all = [] {
    QList<SearchedSymbol> list;
    for (const auto name : emblemSymbols()) {
      SearchedSymbol symbol{text(name), {}};
      for (const QString& word : wordsOf(symbol.name + QLatin1Char(' ') + source(name))) {
        if (tells(word)) symbol.words += QLatin1Char(' ') + word;
      }
      list << symbol;
    }
    return list;
  }();
  return all;
}

// A word of two, as "paintbrush", is found by its second half too.
bool answers(const SearchedSymbol& symbol, const QString& word) {
  return symbol.words.contains(QLatin1Char(' ') + word) ||
         (word.size() > 2 && symbol.words.contains(word));
}

}  // namespace

QStringList symbolsMatching(const QString& query) {
  const QStringList words = wordsOf(query);
  QStringList names;
  for (const SearchedSymbol& symbol : searched()) {
    const auto found = [&](const QString& word) { return answers(symbol, word); };
    if (std::ranges::all_of(words, found)) names << symbol.name;
  }
  return names;
}

QString spokenSymbol(const QString& name) {
  QStringList words = name.split(QLatin1Char('.'));
  words.removeAll(QStringLiteral("fill"));
  return words.join(QLatin1Char(' '));
}

}  // namespace tarnloft
