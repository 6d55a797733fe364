#include "platform/desktop/fonts/FontTrial.h"

#include "platform/desktop/fonts/FontFile.h"

#include <algorithm>
#include <array>
#include <cstdlib>

#include FT_BBOX_H
#include FT_OUTLINE_H

namespace tarnloft::freetype {
namespace {

// Ems from the origin. The widest ligatures of real fonts take about ten.
constexpr long mostEms = 24;
constexpr FT_ULong firstLetter = 0x20, lastLetter = 0x17F;
constexpr int smallestHinted = 8, largestHinted = 72;
constexpr std::array drawnSizes{11, 16, 28, 64, 144, 288};

bool isWithin(long value, long em) { return std::labs(value) <= mostEms * em; }

bool hasSoundMetrics(FT_Face face) {
  const long em = face->units_per_EM;
  return em >= 16 && isWithin(face->ascender, em) && isWithin(face->descender, em) &&
         isWithin(face->height, em) && isWithin(face->max_advance_width, em) &&
         isWithin(face->underline_position, em) && isWithin(face->underline_thickness, em);
}

// The glyph that is loaded, in units of which an em has so many.
bool isLoadedWithin(FT_Face face, long em) {
  const FT_GlyphSlot glyph = face->glyph;
  if (!isWithin(glyph->advance.x, em) || !isWithin(glyph->advance.y, em)) return false;
  if (glyph->format != FT_GLYPH_FORMAT_OUTLINE) return true;
  FT_BBox box{};
  FT_Outline_Get_CBox(&glyph->outline, &box);
  return isWithin(box.xMin, em) && isWithin(box.xMax, em) && isWithin(box.yMin, em) &&
         isWithin(box.yMax, em);
}

// As it stands in the file. One that can't be read isn't drawn.
bool areOutlinesWithin(FT_Face face) {
  if (!FT_IS_SCALABLE(face)) return true;
  for (long glyph = 0; glyph < face->num_glyphs; ++glyph) {
    if (FT_Load_Glyph(face, FT_UInt(glyph), FT_LOAD_NO_SCALE) != 0) continue;
    if (!isLoadedWithin(face, face->units_per_EM)) return false;
  }
  return true;
}

template <class Use>
bool forEachLetter(FT_Face face, Use&& use) {
  if (!use(FT_UInt(0))) return false;  // what stands for a missing one
  for (FT_ULong letter = firstLetter; letter <= lastLetter; ++letter) {
    const FT_UInt glyph = FT_Get_Char_Index(face, letter);
    if (glyph != 0 && !use(glyph)) return false;
  }
  return true;
}

// The font's own program moves points as it likes, otherwise at each size.
bool areHintsWithin(FT_Face face) {
  if (!FT_IS_SCALABLE(face)) return true;
  for (int size = smallestHinted; size <= largestHinted; ++size) {
    if (FT_Set_Pixel_Sizes(face, 0, FT_UInt(size)) != 0) continue;
    const bool isSound = forEachLetter(face, [&](FT_UInt glyph) {
      return FT_Load_Glyph(face, glyph, FT_LOAD_DEFAULT) != 0 || isLoadedWithin(face, size * 64);
    });
    if (!isSound) return false;
  }
  return true;
}

bool isDrawnAt(FT_Face face, int size) {
  if (FT_Set_Pixel_Sizes(face, 0, FT_UInt(size)) != 0) return true;  // bitmaps of other sizes
  return forEachLetter(face, [&](FT_UInt glyph) {
    if (FT_Load_Glyph(face, glyph, FT_LOAD_DEFAULT | FT_LOAD_COLOR) != 0) return true;
    return isLoadedWithin(face, size * 64L) &&
           (FT_Render_Glyph(face->glyph, FT_RENDER_MODE_NORMAL) == 0 ||
            face->glyph->format != FT_GLYPH_FORMAT_OUTLINE);
  });
}

}  // namespace

bool standsTrial(const FontFile& font) {
  for (long index = 0; index < font.faceCount(); ++index) {
    const Face face = font.openFace(index);
    if (!face || !hasSoundMetrics(face.get()) || !areOutlinesWithin(face.get()) ||
        !areHintsWithin(face.get())) {
      return false;
    }
    const bool isDrawn = std::all_of(drawnSizes.begin(), drawnSizes.end(),
                                     [&](int size) { return isDrawnAt(face.get(), size); });
    if (!isDrawn) return false;
  }
  return true;
}

}  // namespace tarnloft::freetype
