#pragma once

#include "model/Item.h"
#include "model/SharedList.h"

#include <vector>

namespace tarnloft {

// A run of a section's items that is laid out as one: a block of text as a row of its own, tiles as
// a grid. Positions count in the section's shown items.
struct Segment {
  enum class Kind { block, tiles };

  Kind kind = Kind::tiles;
  int first = 0;
  int count = 0;  // 1 for a block, at least 1 for tiles

  bool operator==(const Segment&) const = default;
};

std::vector<Segment> segmentsOf(const SharedList<Item>& items);

}  // namespace tarnloft
