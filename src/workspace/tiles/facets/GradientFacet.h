#pragma once

#include "pictures/GradientView.h"
#include "workspace/tiles/facets/TileFacet.h"

namespace tarnloft {

class GradientFacet : public TileFacet {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Belongs to a tile")
  Q_PROPERTY(tarnloft::GradientLook look READ look NOTIFY changed)

 public:
  using TileFacet::TileFacet;

  GradientLook look() const { return {payload<GradientPayload>().value}; }
};

}  // namespace tarnloft
