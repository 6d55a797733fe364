#pragma once

#include "model/ShownText.h"
#include "workspace/tiles/facets/TileFacet.h"

namespace tarnloft {

class FontFacet : public TileFacet {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Belongs to a tile")
  Q_PROPERTY(QString family READ family NOTIFY changed)
  Q_PROPERTY(bool hasFile READ hasFile NOTIFY changed)
  // Of its file; empty without one, and for one that leads out of the package.
  Q_PROPERTY(QString path READ path NOTIFY changed)

 public:
  using TileFacet::TileFacet;

  QString family() const { return shownText(payload<FontPayload>().value.family); }
  bool hasFile() const { return payload<FontPayload>().value.asset.has_value(); }
  QString path() const;
};

}  // namespace tarnloft
