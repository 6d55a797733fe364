#pragma once

#include "workspace/flow/Segments.h"
#include "workspace/flow/TileHeights.h"

#include <QRectF>

#include <functional>

namespace tarnloft {

// Where each item of a section stands: blocks in rows of their own, tiles in columns that fill the
// width, all tiles of a row as high as its highest. Everything stands on whole points. Setting out
// costs O(items); each question O(log rows).
class FlowLayout {
 public:
  // `measured(index)` is asked for blocks, and for tiles whose told height is an estimate.
  void setOut(const SharedList<Item>& items, double width, const FlowMetrics& metrics,
              const std::function<double(int index)>& measured);

  int count() const { return count_; }
  double columnWidth() const { return columnWidth_; }
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
