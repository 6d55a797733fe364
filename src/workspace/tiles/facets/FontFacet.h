#pragma once

#include "workspace/tiles/facets/TileFacet.h"

namespace tarnloft {

class FontFacet : public TileFacet {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Belongs to a tile")
  Q_PROPERTY(QString family READ family NOTIFY changed)

 public:
  using TileFacet::TileFacet;

  QString family() const { return payload<FontPayload>().value.family; }
};

}  // namespace tarnloft
