#pragma once

#include "quickgrab/panel/SectionBlocks.h"

#include <QObject>
#include <QRect>
#include <QtQml/qqmlregistration.h>

namespace tarnloft {

// What stands in the panel's list, for QML: `GrabKind.Color`.
namespace GrabKind {
Q_NAMESPACE
QML_ELEMENT

enum Kind { BlockHeader, GroupHeader, Color, Media, Font, Gradient, Code };
Q_ENUM_NS(Kind)
}  // namespace GrabKind

// One thing of the list and where it stands, in points from the list's upper left.
struct PlacedThing {
  GrabKind::Kind kind = GrabKind::BlockHeader;
  quint32 block = 0;
  // Of an entry, its place in the block's list; of a group's header, its entries' kind.
  quint32 index = 0;
  int line = -1;  // of entries that stand beside each other; -1 for a header
  QRect room;

  bool isEntry() const { return line >= 0; }
};

// The list's things from top to bottom, as told of all blocks at once: making and drawing those in
// sight is the view's business.
struct PanelLayout {
  static constexpr int width = 316;

  std::vector<PlacedThing> things;
  int height = 0;

  explicit PanelLayout(const std::vector<SectionBlock>& blocks);

  struct Range {
    size_t first = 0;
    size_t last = 0;  // behind the last one
  };
  // The things that show between two heights.
  Range between(int top, int bottom) const;

  // The entry that a key leads to from another one, or from the list's edge with none: along the
  // line and on to the next by one, or to the nearest of the line above or below. None at the edge.
  using Place = std::optional<size_t>;
  Place beside(size_t from, int step) const;
  Place above(size_t from) const { return inLine(from, -1); }
  Place below(size_t from) const { return inLine(from, 1); }
  Place first() const;
  Place last() const;

 private:
  Place inLine(size_t from, int step) const;
};

}  // namespace tarnloft
