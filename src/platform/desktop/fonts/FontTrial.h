#pragma once

namespace tarnloft::freetype {

class FontFile;

// Whether all faces of the font can be drawn at the sizes that are shown, and no glyph is far
// larger than any real one. The toolkit draws what it is given, and can be ended by it.
bool standsTrial(const FontFile& font);

}  // namespace tarnloft::freetype
