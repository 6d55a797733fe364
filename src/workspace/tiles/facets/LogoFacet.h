#pragma once

#include "workspace/tiles/facets/PictureFacet.h"

namespace tarnloft {

class LogoFacet : public PictureFacet {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Belongs to a tile")
  Q_PROPERTY(int variantCount READ variantCount NOTIFY changed)

 public:
  using PictureFacet::PictureFacet;

  void clicked() override;

  int variantCount() const { return int(payload<LogoPayload>().value.variants.size()); }
};

}  // namespace tarnloft
