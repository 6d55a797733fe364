#include "workspace/tiles/facets/ClipFacet.h"

#include "workspace/BrandWorkspace.h"

namespace tarnloft {

QString ClipFacet::path() const { return workspace().assetPath(payload<VideoPayload>().asset); }

void ClipFacet::doubleClicked() { workspace().commands().play(item().id); }

}  // namespace tarnloft
