#pragma once

#include "model/Item.h"

namespace tarnloft {

// Sizes of a section's content, in points. The views of tiles keep to them.
struct FlowMetrics {
  double minWidth = 132;  // of a tile
  double maxWidth = 180;
  double tileHeight = 96;  // of a tile's card
  bool expanded = false;   // tiles tell all of their item

  static constexpr int gap = 14;         // between tiles, rows and segments
  static constexpr int captionGap = 6;   // between a card and its name
  static constexpr int nameHeight = 16;  // of a tile's name
  static constexpr int subcaptionHeight = 14;

  bool operator==(const FlowMetrics&) const = default;
};

// How high tiles are, told without making their views.
namespace TileHeights {

// Of a tile, its caption included, in a column of that width.
double of(const Item& item, const FlowMetrics& metrics, double width);

// Whether that is an estimate only, for the view to correct: a whole snippet's depends on how its
// lines break.
bool isEstimate(const Item& item, const FlowMetrics& metrics);

// Of any item that no view has measured yet, in a flow and a column of those widths: near enough
// for what is out of sight.
double estimate(const Item& item, const FlowMetrics& metrics, double width, double columnWidth);

// How many variants of a logo set stand side by side in that width.
int variantColumns(double width);

// No more of a snippet is shown: laying out a whole file would hold up the window.
inline constexpr qsizetype mostCode = 20'000;

}  // namespace TileHeights
}  // namespace tarnloft
