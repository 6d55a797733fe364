#include "assets/FontManager.h"

namespace tarnloft::FontManager {

void registerAll(const BrandDocument& document, Fonts& fonts) {
  for (const Section& section : document.brand().sections) {
    for (const Item& item : section.items) {
      const auto* const font = std::get_if<FontPayload>(&item.payload);
      if (!font || !font->value.asset) continue;
      if (const auto path = document.assetPath(*font->value.asset)) fonts.registerForProcess(*path);
    }
  }
}

}  // namespace tarnloft::FontManager
