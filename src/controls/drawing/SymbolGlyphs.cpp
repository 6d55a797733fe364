#include "controls/drawing/SymbolGlyphs.h"

#include "controls/symbols/SymbolFont.h"
#include "controls/symbols/SymbolTable.h"

namespace tarnloft {

QString SymbolGlyphs::text(const QString& name) {
  const auto glyph = symbols::glyph(name);
  return glyph ? QString::fromUcs4(&*glyph, 1) : QString();
}

QFont SymbolGlyphs::font(int pixelSize, int weight) {
  QFont font(symbols::fontFamily());
  font.setPixelSize(pixelSize);
  // The font has one weight; from semibold on the glyphs are made bolder as they are drawn.
  font.setWeight(weight >= QFont::DemiBold ? QFont::Bold : QFont::Normal);
  font.setHintingPreference(QFont::PreferNoHinting);
  return font;
}

}  // namespace tarnloft
