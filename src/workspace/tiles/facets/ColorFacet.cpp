#include "workspace/tiles/facets/ColorFacet.h"

#include "pictures/HexColor.h"
#include "workspace/BrandWorkspace.h"

namespace tarnloft {

QColor ColorFacet::color() const { return shownColor(payload<ColorPayload>().value.hex); }

QString ColorFacet::ink() const {
  switch (ColorUtil::contrastingText(payload<ColorPayload>().value.hex)) {
    case TextColor::black: return QStringLiteral("black");
    case TextColor::white: return QStringLiteral("white");
    case TextColor::primary: break;
  }
  return {};
}

void ColorFacet::clicked() { workspace().commands().copyColor(payload<ColorPayload>().value.hex); }

}  // namespace tarnloft
