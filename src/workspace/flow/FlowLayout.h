#pragma once

#include "workspace/flow/Segments.h"

#include <QRectF>

#include <functional>

namespace tarnloft {

// Sizes of a section's content, in points.
struct FlowMetrics {
  double minWidth = 132;  // of a tile
  double maxWidth = 180;
  double tileHeight = 96;  // of a tile's card

  static constexpr int gap = 14;         // between tiles, rows and segments
  static constexpr int captionGap = 6;   // between a card and its name
  static constexpr int nameHeight = 16;  // of a tile's name
  static constexpr int subcaptionHeight = 14;

  bool operator==(const FlowMetrics&) const = default;
};

// Where each item of a section stands: blocks in rows of their own, tiles in columns that fill the
// width, all tiles of a row as high as its highest. Everything stands on whole points. Setting out
// costs O(items); each question O(log rows).
class FlowLayout {
 public:
  // `blockHeight(index)` is asked for blocks alone.
  void setOut(const SharedList<Item>& items, double width, const FlowMetrics& metrics,
              const std::function<double(int index)>& blockHeight);

  int count() const { return count_; }
  double height() const { return rows_.empty() ? 0 : rows_.back().bottom(); }
  QRectF rect(int index) const;
  bool isBlock(int index) const { return rows_[rowOf(index)].isBlock; }

  // The items of rows that reach into the strip, as [first, last).
  struct Range {
    int first = 0;
    int last = 0;
    bool contains(int index) const { return index >= first && index < last; }
    bool operator==(const Range&) const = default;
  };
  Range range(double top, double bottom) const;

  enum class Direction { left, right, up, down, first, last };
  // The tile that the arrow leads to, blocks being passed over; the same one at the edge.
  int neighbour(int index, Direction direction) const;
  // That item if it is a tile, else the next one behind it, else in front of it; -1 if there is
  // none.
  int nearestTile(int index) const;

 private:
  struct Row {
    double top;
    double height;
    int first;
    int count;
    bool isBlock;
    double bottom() const { return top + height; }
  };

  void addRow(double height, int first, int count, bool isBlock);
  size_t rowOf(int index) const;
  int besides(int index, int step) const;
  int aboveOrBelow(int index, int step) const;
  int edge(int step) const;
  double columnLeft(int column) const;

  std::vector<Row> rows_;
  int count_ = 0;
  int columns_ = 1;
  double width_ = 0;
  double columnWidth_ = 0;  // of the last columns; the first ones share what is left over
  int widerColumns_ = 0;    // that are one point wider
};

}  // namespace tarnloft
