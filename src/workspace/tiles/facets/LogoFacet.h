#pragma once

#include "sheets/logos/LogoVariantList.h"
#include "workspace/flow/TileHeights.h"
#include "workspace/tiles/facets/PictureFacet.h"

#include <QQuickItem>

namespace tarnloft {

class LogoFacet : public PictureFacet {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Belongs to a tile")
  Q_PROPERTY(int variantCount READ variantCount NOTIFY changed)
  // For the expanded tile. Made at the first call.
  Q_PROPERTY(QAbstractItemModel* variants READ variants CONSTANT)

 public:
  using PictureFacet::PictureFacet;

  QAbstractItemModel* variants();
  // For `carryOut`: drags the file of that variant out of the program.
  Q_INVOKABLE void drag(int variant, QQuickItem* view, const QImage& grabbed, qreal radius);
  Q_INVOKABLE static int columns(double width) { return TileHeights::variantColumns(width); }

  void clicked() override;

  int variantCount() const { return int(payload<LogoPayload>().value.variants.size()); }

 private:
  std::unique_ptr<LogoVariantList> variants_;
};

}  // namespace tarnloft
