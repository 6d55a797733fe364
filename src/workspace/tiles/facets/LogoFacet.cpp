#include "workspace/tiles/facets/LogoFacet.h"

#include "controls/dragging/Carrying.h"
#include "workspace/BrandWorkspace.h"

namespace tarnloft {

QAbstractItemModel* LogoFacet::variants() {
  if (variants_) return variants_.get();
  variants_ = std::make_unique<LogoVariantList>();
  const auto follow = [this] {
    const BrandDocument* const document = workspace().document();
    if (document)
      variants_->setVariants(payload<LogoPayload>().value.variants, document->packageURL());
  };
  connect(this, &TileFacet::changed, variants_.get(), follow);
  follow();
  return variants_.get();
}

void LogoFacet::drag(int variant, QQuickItem* view, const QImage& grabbed, qreal radius) {
  const QList<LogoVariant>& all = payload<LogoPayload>().value.variants;
  if (variant < 0 || variant >= all.size()) return;
  carryOut(*view, grabbed, radius,
           [commands = &workspace().commands(), asset = all.at(variant).asset](
               const DragLook& look) { commands->dragVariant(asset, look); });
}

void LogoFacet::clicked() { workspace().commands().editVariants(item().id); }

}  // namespace tarnloft
