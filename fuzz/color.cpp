// The colour parser on any text: it never crashes, and each notation of a colour that parses is
// one of the same colour.
#include "publish/ColorUtil.h"

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace tarnloft;
  const QString text = QString::fromUtf8(reinterpret_cast<const char*>(data), qsizetype(size));
  const auto color = ColorUtil::nsColor(text);
  const auto variants = ColorUtil::formatVariants(text);
  if (variants.size() != (color ? 5 : 1)) std::abort();
  if (color.has_value() != ColorUtil::bestGrade(text).has_value()) std::abort();
  for (const ColorCopyFormat format : allCases<ColorCopyFormat>()) {
    (void)ColorUtil::formatted(text, format);
  }
  if (!color) return 0;
  const QString hex = ColorUtil::hex(*color, ColorUtil::Alpha::include);
  if (ColorUtil::hex(*ColorUtil::nsColor(hex), ColorUtil::Alpha::include) != hex) std::abort();
  const auto ink = *ColorUtil::cmyk(text);
  for (const int percent : {ink.c, ink.m, ink.y, ink.k}) {
    if (percent < 0 || percent > 100) std::abort();
  }
  const double luminance = *ColorUtil::relativeLuminance(text);
  if (!(luminance >= 0 && luminance <= 1.0000001)) std::abort();
  return 0;
}
