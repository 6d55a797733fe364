#include "workspace/tiles/facets/FontFacet.h"

#include "workspace/BrandWorkspace.h"

namespace tarnloft {

QString FontFacet::path() const {
  const auto& asset = payload<FontPayload>().value.asset;
  return asset ? workspace().assetPath(*asset) : QString();
}

}  // namespace tarnloft
