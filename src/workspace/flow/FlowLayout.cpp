#include "workspace/flow/FlowLayout.h"

#include <algorithm>
#include <cmath>

namespace tarnloft {

void FlowLayout::setOut(const SharedList<Item>& items, double width, const FlowMetrics& metrics,
                        const std::function<double(int index)>& measured) {
  constexpr int gap = FlowMetrics::gap;
  rows_.clear();
  count_ = int(items.size());
  width_ = std::max(width, 1.0);
  columns_ = std::max(1, int((width_ + gap) / (metrics.minWidth + gap)));
  const double room = width_ - gap * (columns_ - 1);
  columnWidth_ = std::min(std::floor(room / columns_), metrics.maxWidth);
  const bool isFull = columnWidth_ < metrics.maxWidth;
  widerColumns_ = isFull ? int(room - columnWidth_ * columns_) : 0;

  auto item = items.begin();
  for (const Segment& segment : segmentsOf(items)) {
    if (segment.kind == Segment::Kind::block) {
      addRow(measured(segment.first), segment.first, 1, true);
      ++item;
      continue;
    }
    const int end = segment.first + segment.count;
    for (int first = segment.first; first < end; first += columns_) {
      const int count = std::min(columns_, end - first);
      double height = 0;
      for (int i = 0; i < count; ++i, ++item) {
        height = std::max(height, TileHeights::isEstimate(*item, metrics)
                                      ? measured(first + i)
                                      : TileHeights::of(*item, metrics, columnWidth_));
      }
      addRow(height, first, count, false);
    }
  }
}

void FlowLayout::addRow(double height, int first, int count, bool isBlock) {
  const double top = rows_.empty() ? 0 : rows_.back().bottom() + FlowMetrics::gap;
  rows_.push_back({top, height, first, count, isBlock});
}

double FlowLayout::columnLeft(int column) const {
  return column * (columnWidth_ + FlowMetrics::gap) + std::min(column, widerColumns_);
}

QRectF FlowLayout::rect(int index) const {
  const Row& row = rows_[rowOf(index)];
  if (row.isBlock) return {0, row.top, width_, row.height};
  const int column = index - row.first;
  const double width = columnWidth_ + (column < widerColumns_ ? 1 : 0);
  return {columnLeft(column), row.top, width, row.height};
}

size_t FlowLayout::rowOf(int index) const {
  Q_ASSERT(index >= 0 && index < count_);
  const auto after = std::upper_bound(rows_.begin(), rows_.end(), index,
                                      [](int i, const Row& row) { return i < row.first; });
  return size_t(after - rows_.begin()) - 1;
}

FlowLayout::Range FlowLayout::range(double top, double bottom) const {
  const auto from = std::lower_bound(rows_.begin(), rows_.end(), top,
                                     [](const Row& row, double y) { return row.bottom() < y; });
  const auto to = std::upper_bound(from, rows_.end(), bottom,
                                   [](double y, const Row& row) { return y < row.top; });
  if (from == to) return {};
  return {from->first, (to - 1)->first + (to - 1)->count};
}

int FlowLayout::neighbour(int index, Direction direction) const {
  switch (direction) {
    case Direction::left: return besides(index, -1);
    case Direction::right: return besides(index, 1);
    case Direction::up: return aboveOrBelow(index, -1);
    case Direction::down: return aboveOrBelow(index, 1);
    case Direction::first: return edge(1);
    case Direction::last: return edge(-1);
  }
  return index;
}

int FlowLayout::besides(int index, int step) const {
  for (int next = index + step; next >= 0 && next < count_; next += step) {
    if (!isBlock(next)) return next;
  }
  return index;
}

int FlowLayout::aboveOrBelow(int index, int step) const {
  const auto row = std::ptrdiff_t(rowOf(index));
  const int column = index - rows_[size_t(row)].first;
  for (std::ptrdiff_t next = row + step; next >= 0 && next < std::ptrdiff_t(rows_.size());
       next += step) {
    const Row& found = rows_[size_t(next)];
    if (!found.isBlock) return found.first + std::min(column, found.count - 1);
  }
  return index;
}

int FlowLayout::nearestTile(int index) const {
  if (index < 0 || !isBlock(index)) return index;
  for (const int step : {1, -1}) {
    if (const int found = besides(index, step); found != index) return found;
  }
  return -1;
}

// The first tile from one end; -1 if there is none.
int FlowLayout::edge(int step) const {
  const int start = step > 0 ? -1 : count_;
  const int found = besides(start, step);
  return found == start ? -1 : found;
}

}  // namespace tarnloft
