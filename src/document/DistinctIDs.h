#pragma once

#include "model/Brand.h"

namespace tarnloft {

// The brand with an id of its own for each section and each item: in a manifest that was put
// together elsewhere two may share one, and neither views nor edits could tell them apart. The
// first keeps it; the new ones are always the same for the same manifest.
Brand withDistinctIDs(Brand brand);

}  // namespace tarnloft
