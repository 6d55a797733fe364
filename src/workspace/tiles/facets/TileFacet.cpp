#include "workspace/tiles/facets/TileFacet.h"

#include "workspace/tiles/Tile.h"
#include "workspace/tiles/facets/BlockFacet.h"
#include "workspace/tiles/facets/ClipFacet.h"
#include "workspace/tiles/facets/CodeFacet.h"
#include "workspace/tiles/facets/ColorFacet.h"
#include "workspace/tiles/facets/FontFacet.h"
#include "workspace/tiles/facets/GradientFacet.h"
#include "workspace/tiles/facets/LogoFacet.h"
#include "workspace/tiles/facets/PictureFacet.h"

namespace tarnloft {

std::unique_ptr<TileFacet> TileFacet::make(const Tile& tile) {
  using Kind = TileKind::Kind;
  switch (tile.kind()) {
    case Kind::Header:
    case Kind::Text: return std::make_unique<BlockFacet>(tile);
    case Kind::Color: return std::make_unique<ColorFacet>(tile);
    case Kind::Gradient: return std::make_unique<GradientFacet>(tile);
    case Kind::Image: return std::make_unique<PictureFacet>(tile);
    case Kind::Video: return std::make_unique<ClipFacet>(tile);
    case Kind::Font: return std::make_unique<FontFacet>(tile);
    case Kind::Code: return std::make_unique<CodeFacet>(tile);
    case Kind::Logo: return std::make_unique<LogoFacet>(tile);
  }
  Q_UNREACHABLE();
}

const Item& TileFacet::item() const { return tile_.item(); }

BrandWorkspace& TileFacet::workspace() const { return *tile_.workspace(); }

}  // namespace tarnloft
