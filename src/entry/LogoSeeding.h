#pragma once

#include "document/BrandDocument.h"

namespace tarnloft::LogoSeeding {

// Turns the images of the brand into one logo set, which replaces the items of the first section
// that has any, and gives every colour a sample spot colour and usage note. Saves. False, with
// nothing changed, if the brand has no image.
bool seed(BrandDocument& document);

}  // namespace tarnloft::LogoSeeding
