#include "workspace/flow/Segments.h"

#include "workspace/tiles/TileFacts.h"

namespace tarnloft {

std::vector<Segment> segmentsOf(const SharedList<Item>& items) {
  std::vector<Segment> segments;
  int position = 0;
  for (const Item& item : items) {
    if (TileFacts::isBlock(item)) {
      segments.push_back({Segment::Kind::block, position, 1});
    } else if (segments.empty() || segments.back().kind == Segment::Kind::block) {
      segments.push_back({Segment::Kind::tiles, position, 1});
    } else {
      ++segments.back().count;
    }
    ++position;
  }
  return segments;
}

}  // namespace tarnloft
