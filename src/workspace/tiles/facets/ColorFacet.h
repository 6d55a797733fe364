#pragma once

#include "workspace/tiles/facets/TileFacet.h"

#include <QColor>

namespace tarnloft {

// A swatch; a click copies its colour.
class ColorFacet : public TileFacet {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Belongs to a tile")
  Q_PROPERTY(QColor color READ color NOTIFY changed)  // gray for one that doesn't parse
  // What is put on that colour: black, white, or empty for the interface's own.
  Q_PROPERTY(QString ink READ ink NOTIFY changed)

 public:
  using TileFacet::TileFacet;

  QColor color() const;
  QString ink() const;
  void clicked() override;
};

}  // namespace tarnloft
