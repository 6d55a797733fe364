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
  // What the expanded card tells: its first line and those under it, the spot colour's name and the
  // grade of its contrast; empty for none.
  Q_PROPERTY(QString title READ title NOTIFY changed)
  Q_PROPERTY(QStringList lines READ lines NOTIFY changed)
  Q_PROPERTY(QString spot READ spot NOTIFY changed)
  Q_PROPERTY(QString badge READ badge NOTIFY changed)

 public:
  using TileFacet::TileFacet;

  QColor color() const;
  QString ink() const;
  QString title() const;
  QStringList lines() const;
  QString spot() const;
  QString badge() const;
  void clicked() override;
};

}  // namespace tarnloft
