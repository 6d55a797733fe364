#pragma once

#include <QString>

namespace tarnloft::symbols {

// The font that holds the glyphs of the symbol table and nothing else, registered for the process
// at the first call. A glyph fills a square as high as the font's pixel size, its ink about four
// fifths of it. Needs a QGuiApplication; main thread only.
QString fontFamily();

}  // namespace tarnloft::symbols
