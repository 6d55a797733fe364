#pragma once

#include "document/BrandDocument.h"
#include "platform/Fonts.h"

// A brand's fonts, drawable by family name without being installed.
namespace tarnloft::FontManager {

// Of a font file's first face; none if it has no family. Any thread.
inline std::optional<FontNames> names(Fonts& fonts, const QString& path) {
  return fonts.names(path);
}

// Registers the file of each font item that has one; for whenever the brand is shown, because what
// is registered already costs little. Any thread.
void registerAll(const Brand& brand, const PackageReader& package, Fonts& fonts);

}  // namespace tarnloft::FontManager
