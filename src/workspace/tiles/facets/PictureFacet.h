#pragma once

#include "workspace/tiles/TileFacts.h"
#include "workspace/tiles/facets/TileFacet.h"

namespace tarnloft {

// An image, or a logo set under the picture of its primary variant.
class PictureFacet : public TileFacet {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Belongs to a tile")
  // Empty if there is none, and for one that leads out of the package.
  Q_PROPERTY(QString path READ path NOTIFY changed)
  Q_PROPERTY(bool present READ isPresent NOTIFY changed)  // it has a file
  Q_PROPERTY(tarnloft::Backdrop::Kind backdrop READ backdrop NOTIFY changed)
  Q_PROPERTY(QString failureHelp READ failureHelp NOTIFY changed)

 public:
  using TileFacet::TileFacet;

  QString path() const;
  bool isPresent() const { return TileFacts::picture(item()).has_value(); }
  Backdrop::Kind backdrop() const { return TileFacts::backdrop(item()); }
  QString failureHelp() const;
};

}  // namespace tarnloft
