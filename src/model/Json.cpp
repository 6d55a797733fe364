#include "model/JsonCoding.h"

namespace tarnloft {

TARNLOFT_CODED(Brand)
TARNLOFT_CODED(Section)
TARNLOFT_CODED(Item)
TARNLOFT_CODED(Emblem)
TARNLOFT_CODED(AssetRef)
TARNLOFT_CODED(ColorValue)
TARNLOFT_CODED(GradientValue)
TARNLOFT_CODED(FontValue)
TARNLOFT_CODED(CodeValue)
TARNLOFT_CODED(LogoValue)
TARNLOFT_CODED(UsageNote)

}  // namespace tarnloft
