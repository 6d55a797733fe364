#include "sheets/BrandColors.h"

#include "pictures/HexColor.h"

namespace tarnloft {

QList<QColor> brandColors(const Brand& brand) {
  constexpr qsizetype most = 18;
  QList<QColor> colors;
  for (const Section& section : brand.sections) {
    for (const Item& item : section.items) {
      const auto* const color = std::get_if<ColorPayload>(&item.payload);
      const QColor shown = color ? colorOf(color->value.hex) : QColor();
      if (shown.isValid() && !colors.contains(shown)) colors << shown;
      if (colors.size() == most) return colors;
    }
  }
  return colors;
}

}  // namespace tarnloft
