#pragma once

#include "document/PackageReader.h"
#include "publish/ColorUtil.h"
#include "quickgrab/panel/GrabThing.h"

namespace tarnloft {

// What a click on an entry copies, and what is told of it. Without a text it only tells.
struct GrabbedText {
  std::optional<QString> text;
  QString told;
};

// All that stands in the panel's list, as a value: the blocks, and each of their things by its
// place in the layout. A place is any number; where it is no entry's, there is nothing to be had.
class GrabContent {
 public:
  // What a thing's look needs beside the blocks.
  struct Look {
    ColorCopyFormat colorFormat;
    std::optional<PackageReader> files;  // none without a brand
  };

  GrabContent() = default;
  explicit GrabContent(std::vector<SectionBlock> blocks);

  bool isEmpty() const { return blocks_.empty(); }
  const PanelLayout& layout() const { return layout_; }
  // These two of a place within the layout.
  QUuid idOf(size_t place) const;
  GrabThing thing(size_t place, const Look& look) const;

  std::optional<GrabbedText> copyOf(int place, ColorCopyFormat format) const;
  const MediaEntry* media(int place) const;
  // Where the colour of that number stands, from 1 on; -1 for none.
  int colorPlace(int number) const;

 private:
  const PlacedThing* thingAt(int place) const;

  std::vector<SectionBlock> blocks_;
  PanelLayout layout_{blocks_};
};

}  // namespace tarnloft
