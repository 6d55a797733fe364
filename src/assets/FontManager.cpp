#include "assets/FontManager.h"

namespace tarnloft::FontManager {

void registerAll(const Brand& brand, const PackageReader& package, Fonts& fonts) {
  for (const Section& section : brand.sections) {
    for (const Item& item : section.items) {
      const auto* const font = std::get_if<FontPayload>(&item.payload);
      if (!font || !font->value.asset) continue;
      if (const auto path = package.assetPath(*font->value.asset)) fonts.registerForProcess(*path);
    }
  }
}

}  // namespace tarnloft::FontManager
