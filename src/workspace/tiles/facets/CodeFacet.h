#pragma once

#include "workspace/flow/TileHeights.h"
#include "workspace/tiles/facets/TileFacet.h"

namespace tarnloft {

class CodeFacet : public TileFacet {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Belongs to a tile")
  // No more of it than a card can show, as laying out a whole file would hold up the window.
  Q_PROPERTY(QString beginning READ beginning NOTIFY changed)
  // The same of an expanded card.
  Q_PROPERTY(QString whole READ whole NOTIFY changed)

 public:
  using TileFacet::TileFacet;

  QString beginning() const {
    constexpr qsizetype mostShown = 1500;
    return payload<CodePayload>().value.snippet.left(mostShown);
  }
  QString whole() const { return payload<CodePayload>().value.snippet.left(TileHeights::mostCode); }
};

}  // namespace tarnloft
