#pragma once

#include "workspace/tiles/facets/TileFacet.h"

namespace tarnloft {

// A heading or a paragraph between tiles, edited in place.
class BlockFacet : public TileFacet {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Belongs to a tile")
  Q_PROPERTY(QString text READ text NOTIFY changed)
  Q_PROPERTY(int level READ level NOTIFY changed)  // of a heading; 0 for a paragraph

 public:
  using TileFacet::TileFacet;

  QString text() const;
  int level() const;
  Q_INVOKABLE void setText(const QString& text);
  Q_INVOKABLE void remove();
};

}  // namespace tarnloft
