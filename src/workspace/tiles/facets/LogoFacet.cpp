#include "workspace/tiles/facets/LogoFacet.h"

#include "workspace/BrandWorkspace.h"

namespace tarnloft {

void LogoFacet::clicked() { workspace().commands().editVariants(item().id); }

}  // namespace tarnloft
