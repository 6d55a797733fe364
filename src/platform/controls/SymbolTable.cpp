#include "platform/controls/SymbolTable.h"

#include <QHash>

namespace tarnloft {

QString SymbolTable::glyph(const QString& name) const {
  static const QHash<QString, QString> glyphs{
      {QStringLiteral("plus"), QStringLiteral("+")},
      {QStringLiteral("checkmark"), QStringLiteral("✓")},
      {QStringLiteral("chevron.right"), QStringLiteral("›")},
      {QStringLiteral("chevron.up.chevron.down"), QStringLiteral("⇅")},
      {QStringLiteral("xmark.circle.fill"), QStringLiteral("×")},
  };
  return glyphs.value(name, QStringLiteral("◆"));
}

QFont SymbolTable::font(int pixelSize, int weight) const {
  QFont font(QStringLiteral("DejaVu Sans"));
  font.setPixelSize(pixelSize);
  font.setWeight(static_cast<QFont::Weight>(weight));
  return font;
}

}  // namespace tarnloft
