#pragma once

#include "workspace/tiles/facets/TileFacet.h"

namespace tarnloft {

class ClipFacet : public TileFacet {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Belongs to a tile")
  Q_PROPERTY(QString path READ path NOTIFY changed)  // empty for one that leads out of the package

 public:
  using TileFacet::TileFacet;

  QString path() const;
  void doubleClicked() override;  // plays it
};

}  // namespace tarnloft
