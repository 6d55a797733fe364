#include "controls/symbols/SymbolFont.h"

#include <QFontDatabase>
#include <QStringList>

namespace tarnloft::symbols {
namespace {

QString registerFont() {
  const int id = QFontDatabase::addApplicationFont(QStringLiteral(":/tarnloft/symbols.ttf"));
  if (id < 0) qFatal("The built-in symbol font can't be read");
  return QFontDatabase::applicationFontFamilies(id).constFirst();
}

}  // namespace

QString fontFamily() {
  static const QString family = registerFont();
  return family;
}

}  // namespace tarnloft::symbols
