#include "quickgrab/panel/PanelLayout.h"

#include <algorithm>
#include <cmath>

namespace tarnloft {
namespace {

using Kind = GrabKind::Kind;

constexpr int betweenBlocks = 18;
constexpr int betweenGroups = 10;
constexpr int betweenRows = 6;
constexpr int blockHeaderHeight = 16;
constexpr int groupHeaderHeight = 13;

// How a group lays out its entries: a grid of columns that share the width, or rows.
struct Grid {
  int columns;
  double columnWidth;
  int gap;
  int height;
};

constexpr double mediaGap = 10;
constexpr int mediaColumns = int((PanelLayout::width + mediaGap) / (84 + mediaGap));

Grid gridOf(Kind kind) {
  switch (kind) {
    case Kind::Color: return {(PanelLayout::width + 8) / (34 + 8), 34, 8, 34};
    case Kind::Media:
      return {mediaColumns, (PanelLayout::width + mediaGap) / mediaColumns - mediaGap,
              int(mediaGap), 58 + 4 + 14};
    case Kind::Font: return {1, PanelLayout::width, betweenRows, 32};
    case Kind::Gradient: return {1, PanelLayout::width, betweenRows, 26};
    default: return {1, PanelLayout::width, betweenRows, 30};
  }
}

class Builder {
 public:
  explicit Builder(PanelLayout& layout) : layout_(layout) {}

  void add(const SectionBlock& block, quint32 number) {
    number_ = number;
    if (number > 0) y_ += betweenBlocks;
    place(Kind::BlockHeader, 0, -1, {0, y_, PanelLayout::width, blockHeaderHeight});
    y_ += blockHeaderHeight;
    const bool isTitled = block.enabledTypeCount() > 1;
    addGroup(Kind::Color, block.colors.size(), isTitled);
    addGroup(Kind::Media, block.media.size(), isTitled);
    addGroup(Kind::Font, block.fonts.size(), isTitled);
    addGroup(Kind::Gradient, block.gradients.size(), isTitled);
    addGroup(Kind::Code, block.codes.size(), isTitled);
    layout_.height = y_;
  }

 private:
  void addGroup(Kind kind, size_t count, bool isTitled) {
    if (count == 0) return;
    y_ += betweenGroups;
    if (isTitled) {
      place(Kind::GroupHeader, kind, -1, {0, y_, PanelLayout::width, groupHeaderHeight});
      y_ += groupHeaderHeight + betweenRows;
    }
    const Grid grid = gridOf(kind);
    for (size_t i = 0; i < count; ++i) {
      const int column = int(i) % grid.columns;
      if (i > 0 && column == 0) y_ += grid.height + grid.gap;
      if (column == 0) ++line_;
      // On whole points, which the columns share out between them.
      const int left = int(std::lround(column * (grid.columnWidth + grid.gap)));
      const int right = int(std::lround((column + 1) * (grid.columnWidth + grid.gap))) - grid.gap;
      place(kind, quint32(i), line_, {left, y_, right - left, grid.height});
    }
    y_ += grid.height;
  }

  void place(Kind kind, quint32 index, int line, const QRect& room) {
    layout_.things.push_back({kind, number_, index, line, room});
  }

  PanelLayout& layout_;
  quint32 number_ = 0;
  int y_ = 0;
  int line_ = -1;
};

}  // namespace

PanelLayout::PanelLayout(const std::vector<SectionBlock>& blocks) {
  Builder builder(*this);
  for (size_t i = 0; i < blocks.size(); ++i) builder.add(blocks[i], quint32(i));
}

PanelLayout::Range PanelLayout::between(int top, int bottom) const {
  const auto first = std::ranges::partition_point(
      things, [&](const PlacedThing& thing) { return thing.room.bottom() < top; });
  const auto last = std::partition_point(
      first, things.end(), [&](const PlacedThing& thing) { return thing.room.top() < bottom; });
  return {size_t(first - things.begin()), size_t(last - things.begin())};
}

PanelLayout::Place PanelLayout::beside(size_t from, int step) const {
  for (auto at = ptrdiff_t(from) + step; at >= 0 && at < std::ssize(things); at += step) {
    if (things[size_t(at)].isEntry()) return size_t(at);
  }
  return std::nullopt;
}

PanelLayout::Place PanelLayout::first() const {
  const auto found = std::ranges::find_if(things, &PlacedThing::isEntry);
  return found == things.end() ? Place() : Place(size_t(found - things.begin()));
}

PanelLayout::Place PanelLayout::last() const {
  return things.empty() ? Place() : Place(things.size() - 1);
}

// The nearest by their middles; the first of those as near.
PanelLayout::Place PanelLayout::inLine(size_t from, int step) const {
  const PlacedThing& here = things[from];
  Place best;
  int least = 0;
  int line = -1;
  for (Place at = beside(from, step); at; at = beside(*at, step)) {
    const PlacedThing& there = things[*at];
    if (there.line == here.line) continue;
    if (line < 0) line = there.line;
    if (there.line != line) break;
    const int distance = std::abs(there.room.center().x() - here.room.center().x());
    if (!best || distance < least || (distance == least && *at < *best)) {
      best = at;
      least = distance;
    }
  }
  return best;
}

}  // namespace tarnloft
