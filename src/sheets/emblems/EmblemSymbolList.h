#pragma once

#include <QStringList>

namespace tarnloft {

// The symbols that emblems are offered, in their order, for which each word of the query begins one
// of the symbol's: of its name, or of the icon font's for the same glyph. All for a query of
// blanks.
QStringList symbolsMatching(const QString& query);

// What a symbol's name says, such as "paint brush pointed" for "paintbrush.pointed.fill".
QString spokenSymbol(const QString& name);

}  // namespace tarnloft
